#pragma once

#include "StoredItem.h"

namespace tarnel::mailbox {

// A series as a whole keeps its times: setting Start, end or Duration on it fails, on one of its occurrences it makes
// an exception.
class StoredAppointment : public StoredItem<outlook::AppointmentItem> {
 public:
  using StoredItem::StoredItem;

  Date Start() const override { return dateOf(record().start); }
  Date end() const override { return dateOf(record().end); }
  std::int32_t Duration() const override;
  void setStart(Date start) override;
  void setEnd(Date end) override;
  void setDuration(std::int32_t minutes) override;
  std::string Location() const override { return record().location; }
  void setLocation(std::string_view location) override { change().location = location; }
  bool AllDayEvent() const override { return record().allDay; }
  bool IsRecurring() const override { return record().isRecurring(); }
  bool ReminderSet() const override { return record().reminderSet; }
  std::int32_t Sensitivity() const override { return static_cast<std::int32_t>(record().sensitivity); }

 private:
  ItemRecord& changeTimes();
};

}  // namespace tarnel::mailbox
