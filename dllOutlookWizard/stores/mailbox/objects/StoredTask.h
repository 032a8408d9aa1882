#pragma once

#include "StoredItem.h"

namespace tarnel::mailbox {

class StoredTask : public StoredItem<outlook::TaskItem> {
 public:
  using StoredItem::StoredItem;

  outlook::TaskStatus Status() const override { return record().status; }
  void setStatus(outlook::TaskStatus status) override;
  Date dueDate() const override { return dateOf(record().dueDate); }
  void setDueDate(Date date) override;
  std::int32_t TotalWork() const override { return static_cast<std::int32_t>(record().totalWork); }
  void setTotalWork(std::int32_t minutes) override { change().totalWork = minutes; }
  std::int32_t ActualWork() const override { return static_cast<std::int32_t>(record().actualWork); }
  void setActualWork(std::int32_t minutes) override { change().actualWork = minutes; }
};

}  // namespace tarnel::mailbox
