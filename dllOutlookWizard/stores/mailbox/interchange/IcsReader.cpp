#include "IcsReader.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include "Failure.h"
#include "IcsItem.h"
#include "ItemColumns.h"
#include "NamedProperties.h"
#include "SeriesIndex.h"

namespace tarnel::mailbox {
namespace {

[[noreturn]] void failFile(const std::string& name, const std::string& problem) {
  throw Failure(failure::automation, "The calendar file \"" + name + "\" can't be imported: " + problem + ".",
                "Tarnel.Mailbox");
}

class Import {
 public:
  Import(Mailbox& mailbox, const IcsCalendar& calendar, const std::string& name)
      : mailbox_(mailbox),
        store_(mailbox.store),
        calendar_(calendar),
        times_(calendar),
        name_(name),
        now_(wallSecondsOf(mailbox.clock.now())) {}

  ImportReport run() {
    problems_ = calendar_.problems;
    std::vector<IcsItem> items = readItems();
    // Series come before their exceptions, wherever the file has them.
    std::stable_partition(items.begin(), items.end(), [](const IcsItem& item) { return !item.recurrenceId; });
    store_.write([&] {
      for (IcsItem& item : items) take(item);
    });
    std::stable_sort(problems_.begin(), problems_.end(),
                     [](const IcsProblem& a, const IcsProblem& b) { return a.line < b.line; });
    for (const IcsProblem& problem : problems_)
      report_.skipped.push_back(name_ + ":" + std::to_string(problem.line) + ": " + problem.text);
    return std::move(report_);
  }

 private:
  std::vector<IcsItem> readItems() {
    std::vector<IcsItem> items;
    for (const IcsComponent& component : calendar_.components) {
      if (component.kind == "VTIMEZONE") continue;
      try {
        if (component.kind != "VEVENT" && component.kind != "VTODO")
          throw BadComponent{{component.line, "a " + component.kind + " is neither an event nor a to-do"}};
        items.push_back(readIcsItem(component, times_, now_));
      } catch (const BadComponent& bad) {
        problems_.push_back(bad.problem);
      }
    }
    return items;
  }

  void take(IcsItem& item) {
    if (item.record.kind == outlook::ItemType::appointment && item.recurrenceId && attach(item)) return;
    if (!item.record.recurrence.empty()) {
      // A series in the machine's own zone stays there wherever the machine goes.
      if (!item.tzid.empty() && item.tzid != machine::zoneName())
        item.record.zone = mailbox_.zones.idOf(item.tzid, times_.definition(item.tzid));
      indexSeries(item.record, mailbox_.zones.at(item.record.zone));
    }
    const auto known = findByUid(item.record);
    store(item, known);
    if (!item.record.recurrence.empty()) attachOrphans(item);
  }

  // Ties an exception to its series. True when nothing is left to store.
  bool attach(IcsItem& item) {
    Statement rows = store_.prepare(
        "SELECT i.id, i.folder, i.seriesStart, i.allDay, z.tzid, i.zone FROM items i "
        "LEFT JOIN zones z ON z.id = i.zone WHERE i.uid = ? AND i.original IS NULL AND i.recurrence <> ''");
    if (!rows.bind(item.record.uid).step()) return false;
    std::optional<std::int64_t> zone;
    if (!rows.isNull(5)) zone = rows.number(5);
    const IcsSeries series{rows.number(2), rows.flag(3), rows.text(4), mailbox_.zones.at(zone)};
    item.record.series = rows.number(0);
    item.record.folder = rows.number(1);
    item.record.original = times_.inSeries(series, *item.recurrenceId);
    const bool erased = isErasedOccurrence(store_, *item.record.series, *item.record.original);
    if (item.cancelled && !erased) eraseOccurrence(store_, *item.record.series, *item.record.original);
    if (item.cancelled || erased) ++(erased ? report_.unchanged : report_.updated);
    return item.cancelled || erased;
  }

  // Exceptions that came before their series did.
  void attachOrphans(const IcsItem& item) {
    std::vector<std::pair<std::int64_t, WallSeconds>> orphans;
    {
      Statement rows =
          store_.prepare("SELECT id, original FROM items WHERE uid = ? AND series IS NULL AND original IS NOT NULL");
      rows.bind(item.record.uid);
      while (rows.step()) orphans.emplace_back(rows.number(0), rows.number(1));
    }
    const IcsSeries series{item.record.seriesStart, item.record.allDay, item.tzid, mailbox_.zones.at(item.record.zone)};
    for (const auto& [id, original] : orphans)
      store_.prepare("UPDATE OR IGNORE items SET series = ?, original = ? WHERE id = ?")
          .bind(item.record.id)
          .bind(times_.inSeries(series, {original, false, {}}))
          .bind(id)
          .run();
  }

  std::optional<ItemRecord> findByUid(const ItemRecord& item) {
    Statement rows = store_.prepare("SELECT " + itemSelection() +
                                    " FROM items i WHERE i.uid = ? AND i.kind = ? AND i.original IS ?");
    rows.bind(item.uid).bind(static_cast<std::int64_t>(item.kind));
    rows.bind(item.original ? SqlValue(*item.original) : SqlValue());
    if (!rows.step()) return {};
    ItemRecord found = readItem(rows);
    readTexts(store_, found);
    return found;
  }

  void store(IcsItem& item, const std::optional<ItemRecord>& known) {
    item.record.created = known ? known->created : now_;
    item.record.modified = known ? known->modified : now_;
    if (known) {
      item.record.id = known->id;
      item.record.folder = known->folder;
      // Known already, so that a file without the date changes nothing.
      if (known->status == item.record.status && item.record.dateCompleted == midnightOf(now_))
        item.record.dateCompleted = known->dateCompleted;
    }
    bool changed = !known || item.record != *known;
    if (!known)
      insertItem(store_, item.record);
    else if (changed)
      update(*known, item.record);
    changed = storeProperties(item) || changed;
    changed = storeDeleted(item) || changed;
    ++(!known ? report_.added : changed ? report_.updated : report_.unchanged);
  }

  void update(const ItemRecord& before, ItemRecord& item) {
    item.modified = now_;
    [[maybe_unused]] const bool isThere = updateItem(store_, before, item);
    assert(isThere);  // it was read in the same transaction
  }

  bool storeProperties(const IcsItem& item) {
    const std::vector<NamedProperty> known = readProperties(store_, item.record.id);
    bool changed = false;
    for (const NamedProperty& property : item.properties) {
      if (std::find(known.begin(), known.end(), property) != known.end()) continue;
      writeProperty(store_, item.record.id, property);
      changed = true;
    }
    return changed;
  }

  bool storeDeleted(const IcsItem& item) {
    bool changed = false;
    for (const WallSeconds original : item.deleted) {
      if (isErasedOccurrence(store_, item.record.id, original)) continue;
      eraseOccurrence(store_, item.record.id, original);
      changed = true;
    }
    return changed;
  }

  Mailbox& mailbox_;
  Store& store_;
  const IcsCalendar& calendar_;
  IcsTimes times_;
  std::string name_;
  WallSeconds now_;
  ImportReport report_;
  std::vector<IcsProblem> problems_;
};

}  // namespace

ImportReport importIcs(Mailbox& mailbox, const std::filesystem::path& file) {
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  if (!stream || !(text << stream.rdbuf())) failFile(file.string(), errno != 0 ? std::strerror(errno) : "it is empty");
  return importIcsText(mailbox, text.str(), file.string());
}

ImportReport importIcsText(Mailbox& mailbox, std::string_view text, const std::string& name) {
  const IcsCalendar calendar = readIcsLines(text);
  if (!calendar.found) failFile(name, "it has no calendar in it (no line BEGIN:VCALENDAR)");
  return Import(mailbox, calendar, name).run();
}

}  // namespace tarnel::mailbox
