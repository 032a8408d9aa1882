#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "FolderIds.h"
#include "Item.h"
#include "WallTime.h"

namespace tarnel::mailbox {

// A row of the store's items: a task, an appointment, a series or an exception of a series. Fields that its kind has
// not keep what they begin with here.
struct ItemRecord {
  std::int64_t id = 0;  // 0: not in the store yet
  std::int64_t folder = folderId::tasks;
  outlook::ItemType kind = outlook::ItemType::task;
  std::string subject;
  std::int64_t importance = static_cast<std::int64_t>(outlook::Importance::normal);
  std::int64_t sensitivity = 0;

  outlook::TaskStatus status = outlook::TaskStatus::notStarted;
  std::int64_t percentComplete = 0;
  WallSeconds dateCompleted = noDate;
  WallSeconds dueDate = noDate;
  std::int64_t totalWork = 0;   // minutes
  std::int64_t actualWork = 0;  // minutes

  WallSeconds start = noDate;
  WallSeconds end = noDate;
  std::string location;
  bool allDay = false;
  bool reminderSet = false;

  // An occurrence or an exception: its series, and the moment at which the series has it, in the series' own zone.
  std::optional<std::int64_t> series;
  std::optional<WallSeconds> original;
  // A series: its rules (lines RRULE and RDATE), its zone (none: the machine's own), its start in that zone, and what
  // an index finds its occurrences by; see ItemColumns.h.
  std::string recurrence;
  std::optional<std::int64_t> zone;
  WallSeconds seriesStart = 0;
  WallSeconds seriesEnd = 0;
  std::int64_t weekdays = 0;
  std::int64_t monthDays = 0;

  std::string uid;
  WallSeconds created = 0;
  WallSeconds modified = 0;

  // Long texts, read only when they are asked for: none means not read.
  std::optional<std::string> body;
  std::optional<std::string> extras;

  friend bool operator==(const ItemRecord&, const ItemRecord&) = default;
  [[nodiscard]] bool isRecurring() const { return series.has_value() || !recurrence.empty(); }
};

// Puts percent complete and the completion date in step with a status: complete means 100 percent and a date (the one
// that it has, else `today`), anything else means less than 100 and none.
void setTaskStatus(ItemRecord& task, outlook::TaskStatus status, WallSeconds today);

}  // namespace tarnel::mailbox
