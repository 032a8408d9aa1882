#include <optional>

#include "CStringBag.h"
#include "Conversions.h"
#include "DaySchedules.h"
#include "Hourglass.h"
#include "OutlookDateSpan.h"
#include "OutlookLink.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

using outlook::AppointmentItem;

std::string generalDate(Date date) { return platform().locale.generalDate(date); }

// What can't be read of an item is left out of its tag.
void writeFacts(CStringBag& tag, const AppointmentItem& item) {
  const auto write = [&tag](const char* name, auto read) {
    ignoringFailures([&] { tag.WriteItem(name, toText(Variant(read()))); });
  };
  write("Tag1", [] { return "OUTLOOK"; });
  write("Tag3", [&] { return static_cast<std::int32_t>(item.importance()); });
  write("Tag4", [&] { return item.IsRecurring(); });
  write("Tag5", [&] { return item.Location(); });
  write("Tag6", [&] { return item.ReminderSet(); });
  write("Tag7", [&] { return item.Sensitivity(); });
  write("Tag8", [&] { return generalDate(item.Start()); });
  write(apptTag::recurring, [&] { return item.IsRecurring(); });
}

void writeGuid(CStringBag& tag, AppointmentItem& item) {
  if (const auto property = item.UserProperties()->Item(outlookLink::tarnelGuid))
    tag.WriteItem(outlookLink::tarnelGuid, toText(property->Value()));
}

bool isCopyOfOurs(const AppointmentItem& item) {
  bool ours = false;
  ignoringFailures([&] { ours = item.Location() == tarnelLocation; });
  return ours;
}

// One item on the schedules. Its id and times must be readable, anything else it shows as far as it can be read.
class ItemRows {
 public:
  ItemRows(ctMDay& beside, ctMDay& outlookSide) : beside_(beside), outlookSide_(outlookSide) {}

  void add(AppointmentItem& item) {
    CStringBag tag;
    tag.WriteItem(outlookLink::entryId, item.EntryID());
    ScheduleRow row;
    row.times = rowTimes(item);
    writeFacts(tag, item);
    if (isCopyOfOurs(item))
      addCopy(item, tag, row);
    else
      addOther(item, tag, row);
  }

  // Items that a schedule had no room for.
  std::int32_t leftOut() const { return leftOut_; }

 private:
  void addCopy(AppointmentItem& item, CStringBag& tag, ScheduleRow& row) {
    ignoringFailures([&] { tag.WriteItem(outlookLink::entryId, item.EntryID()); });
    ignoringFailures([&] { writeGuid(tag, item); });
    row.ownerImage = apptPicture::tarnel;
    ignoringFailures([&] { row.color = taskApptColor(); });
    show(item, tag, row, {&outlookSide_});
  }

  void addOther(AppointmentItem& item, CStringBag& tag, ScheduleRow& row) {
    ignoringFailures([&] {
      const std::string entryId = item.EntryID();
      tag.WriteItem(outlookLink::entryId, entryId.empty() ? "Missing EntryID" : entryId);
    });
    row.ownerImage = apptPicture::outlook;
    row.color = session().theOutlookApptColor;
    show(item, tag, row, {&beside_, &outlookSide_});
  }

  void show(const AppointmentItem& item, const CStringBag& tag, ScheduleRow& row,
            std::initializer_list<ctMDay*> schedules) {
    row.tag = tag.Contents();
    ignoringFailures([&] { row.allDay = item.AllDayEvent(); });
    // A row without a text can't be added, so an item without a readable subject is on neither side.
    if (!ignoringFailures([&] { row.text = item.subject(); })) return;
    bool room = true;
    for (ctMDay* schedule : schedules) {
      room &= !schedule->isFull();
      ignoringFailures([&] { addRow(*schedule, row); });
    }
    if (!room) ++leftOut_;
  }

  ctMDay& beside_;
  ctMDay& outlookSide_;
  std::int32_t leftOut_ = 0;
};

void showItems(Date dStart, Date dEnd, ItemRows& rows) {
  const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::calendar);
  const auto items = OutlookDateSpan(folder->items(), dStart, dEnd);
  if (!items) failObjectNotSet();
  items->Sort("[Start]");
  for (auto item = items->GetFirst(); item; item = items->GetNext()) rows.add(*outlook::asAppointment(item));
}

}  // namespace

bool DaySchedules::GetDisplayOutlookAppts(ctMDay& ctControl, Date dStart, Date dEnd) {
  const auto records = theTaskApptRows;
  std::optional<Hourglass> hourglass(std::in_place);
  // No hourglass over a box that waits for its reader.
  if (!attachOrTell([&] { hourglass.reset(); })) return false;
  if (theTaskApptRows != records) {  // waiting events chose a day, which is on both sides already
    releaseOutlook();
    return true;
  }
  ItemRows shown(ctControl, outlookSide);
  const bool walked = ignoringFailures([&] {
    outlookSide.AppClear();
    showItems(dStart, dEnd, shown);
  });
  hourglass.reset();
  releaseOutlook();
  tellRowsLeftOut(shown.leftOut());
  return walked;
}

}  // namespace tarnel
