#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "EntryId.h"
#include "Item.h"
#include "Schema.h"
#include "Store.h"
#include "WallTime.h"

namespace tarnel::mailbox {

// A row of the store's items: a task, an appointment, a series or an exception of a series. Fields that its kind has
// not keep what stands here.
struct ItemRecord {
  std::int64_t id = 0;  // 0: not in the store yet
  std::int64_t folder = schema::tasks;
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
  // an index finds its occurrences by; see Schema.cpp.
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

// The select list, for a table named `i`, that readItem reads.
extern const std::string_view itemColumns;
inline constexpr int itemColumnCount = 28;
ItemRecord readItem(const StoreStatement& row);

bool isStored(Store& store, std::int64_t id);
std::optional<ItemRecord> findItem(Store& store, std::int64_t id);
std::optional<ItemRecord> findException(Store& store, std::int64_t series, WallSeconds original);
// Reads the long texts that the record has not yet.
void readTexts(Store& store, ItemRecord& item);

// Each inside a transaction of the caller's. insertItem gives the record its id and, where it has none, a uid.
void insertItem(Store& store, ItemRecord& item);
// Writes the columns that differ from `before` and no others. False when the item isn't in the store any more.
[[nodiscard]] bool updateItem(Store& store, const ItemRecord& before, const ItemRecord& item);
// With the exceptions of a series. False when the item isn't in the store any more.
[[nodiscard]] bool moveItemRow(Store& store, std::int64_t id, std::int64_t folder);
[[nodiscard]] bool eraseItemRow(Store& store, std::int64_t id);
// Takes one occurrence out of its series, with its exception if it has one.
void eraseOccurrence(Store& store, std::int64_t series, WallSeconds original);
[[nodiscard]] bool isErasedOccurrence(Store& store, std::int64_t series, WallSeconds original);

EntryId entryIdOf(const Store& store, const ItemRecord& item);

}  // namespace tarnel::mailbox
