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
  void setTotalWork(std::int32_t minutes) override;
  std::int32_t ActualWork() const override { return static_cast<std::int32_t>(record().actualWork); }
  void setActualWork(std::int32_t minutes) override;
};

// Puts percent complete and the completion date in step with a status: complete means 100 percent and a date (the one
// that it has, else `today`), anything else means less than 100 and none.
void setTaskStatus(ItemRecord& task, outlook::TaskStatus status, WallSeconds today);

}  // namespace tarnel::mailbox
