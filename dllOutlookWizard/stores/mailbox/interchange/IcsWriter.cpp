#include "IcsWriter.h"

#include <map>
#include <vector>

#include "Conversions.h"
#include "Failure.h"
#include "FileHead.h"
#include "IcsItem.h"
#include "IcsLines.h"
#include "IcsOutput.h"
#include "ItemColumns.h"
#include "NamedProperties.h"
#include "Recurrence.h"
#include "ReplaceFile.h"

namespace tarnel::mailbox {
namespace {

// How the times of a series are written: the name of its zone, empty for none ("floating").
struct SeriesZone {
  std::string tzid;
  Zone zone;
};

// A zone of the tz database has no definition of its own.
struct StoredZone {
  std::string tzid;
  std::string definition;
  friend bool operator==(const StoredZone&, const StoredZone&) = default;
};

bool isTzid(std::string_view line) {
  const std::string_view name = line.substr(0, line.find_first_of(":;"));
  return equalsIgnoringCase(name, "TZID");
}

// Says what operator+ says, in a way that doesn't lead the compiler to warn of overlaps that can't be.
std::string joined(std::string_view head, std::string_view tail) { return std::string(head).append(tail); }

class Export {
 public:
  explicit Export(Mailbox& mailbox) : mailbox_(mailbox), store_(mailbox.store) {}

  std::string run() {
    IcsOutput calendar;
    calendar.line("BEGIN:VCALENDAR");
    calendar.line("VERSION:2.0");
    calendar.line("PRODID:-//Tarnel//Mailbox//EN");
    store_.read([&] { writeItems(); });
    for (const auto& [name, zone] : zones_) {
      const std::string definition = zone.definition.empty() ? zoneDefinition(zone.tzid) : zone.definition;
      for (const IcsLine& line : unfolded(definition))
        calendar.line(name != zone.tzid && isTzid(line.text) ? joined("TZID:", name) : line.text);
    }
    return calendar.result() + items_.result() + "END:VCALENDAR\r\n";
  }

  int count() const { return count_; }

 private:
  void writeItems() {
    Statement rows =
        store_.prepare("SELECT " + itemSelection() +
                       " FROM items i WHERE i.folder IN (?, ?) ORDER BY i.folder DESC, ifnull(i.series, i.id), i.id");
    rows.bind(folderId::tasks).bind(folderId::calendar);
    while (rows.step()) {
      ItemRecord item = readItem(rows);
      readTexts(store_, item);
      write(item);
      ++count_;
    }
  }

  void write(const ItemRecord& item) {
    const bool isTask = item.kind == outlook::ItemType::task;
    items_.line(isTask ? "BEGIN:VTODO" : "BEGIN:VEVENT");
    items_.line(joined("UID:", item.uid));
    items_.line(joined("DTSTAMP:", utc(item.modified)));
    items_.text("SUMMARY", item.subject);
    items_.text("DESCRIPTION", *item.body);
    writePriority(item.importance);
    writeClass(item.sensitivity);
    if (isTask)
      writeTask(item);
    else
      writeEvent(item);
    for (const NamedProperty& property : readProperties(store_, item.id)) writeProperty(property);
    for (const IcsLine& line : unfolded(*item.extras)) items_.line(line.text);
    items_.line(isTask ? "END:VTODO" : "END:VEVENT");
  }

  void writePriority(std::int64_t importance) {
    if (importance == static_cast<std::int64_t>(outlook::Importance::high)) items_.line("PRIORITY:1");
    if (importance == static_cast<std::int64_t>(outlook::Importance::low)) items_.line("PRIORITY:9");
  }

  void writeClass(std::int64_t sensitivity) {
    if (sensitivity != 0) items_.line(sensitivity == 3 ? "CLASS:CONFIDENTIAL" : "CLASS:PRIVATE");
  }

  void writeProperty(const NamedProperty& property) {
    // A parameter can't hold a quotation mark.
    std::string name = property.name;
    std::erase(name, '"');
    items_.line(std::string(ics::userProperty) + ";" + ics::userPropertyName + "=\"" + name +
                "\":" + escaped(property.value));
  }

  void writeTask(const ItemRecord& task) {
    using outlook::TaskStatus;
    if (task.original) items_.line(joined("RECURRENCE-ID:", utc(*task.original)));
    items_.line(task.status == TaskStatus::complete     ? "STATUS:COMPLETED"
                : task.status == TaskStatus::inProgress ? "STATUS:IN-PROCESS"
                                                        : "STATUS:NEEDS-ACTION");
    if (task.status == TaskStatus::waiting) items_.line(std::string(ics::status) + ":WAITING");
    if (task.percentComplete > 0) items_.line(joined("PERCENT-COMPLETE:", std::to_string(task.percentComplete)));
    if (task.dateCompleted != noDate) items_.line(joined("COMPLETED:", utc(task.dateCompleted)));
    if (task.dueDate != noDate) items_.line(joined("DUE;VALUE=DATE:", icalText(task.dueDate, true)));
    if (task.totalWork != 0) items_.line(std::string(ics::totalWork) + ":" + std::to_string(task.totalWork));
    if (task.actualWork != 0) items_.line(std::string(ics::actualWork) + ":" + std::to_string(task.actualWork));
  }

  void writeEvent(const ItemRecord& event) {
    items_.text("LOCATION", event.location);
    if (!event.recurrence.empty()) return writeSeries(event);
    if (event.series) writeRecurrenceId(event);
    if (event.original && !event.series) items_.line(joined("RECURRENCE-ID", single(*event.original, event.allDay)));
    items_.line(joined("DTSTART", single(event.start, event.allDay)));
    items_.line(joined("DTEND", single(event.end, event.allDay)));
  }

  void writeRecurrenceId(const ItemRecord& exception) {
    const auto series = findItem(store_, *exception.series);
    if (series) items_.line(joined("RECURRENCE-ID", inSeries(*series, *exception.original)));
  }

  void writeSeries(const ItemRecord& series) {
    const WallSeconds length = series.end - series.start;
    items_.line(joined("DTSTART", inSeries(series, series.seriesStart)));
    items_.line(joined("DTEND", inSeries(series, series.seriesStart + length)));
    const SeriesZone zone = zoneOf(series.zone);
    for (const IcsLine& line : unfolded(series.recurrence)) {
      constexpr std::size_t prefix = 6;  // of "RRULE:" and "RDATE:"
      const std::string value = line.text.substr(prefix);
      if (line.text.starts_with("RRULE:"))
        items_.line(joined("RRULE:", ruleWithUntil(value, series.allDay || zone.tzid.empty(), zone.zone)));
      else
        items_.line(joined("RDATE", inSeries(series, wallSecondsOfText(value))));
    }
    Statement deleted = store_.prepare("SELECT original FROM deletedOccurrences WHERE series = ? ORDER BY original");
    deleted.bind(series.id);
    while (deleted.step()) items_.line(joined("EXDATE", inSeries(series, deleted.number(0))));
  }

  static std::string utc(WallSeconds wall) { return icalText(Zone::utc().wallOf(machine::unixSecondsOf(wall))) + "Z"; }

  // A wall time that a clock change skips is no moment in UTC and stays a wall time.
  std::string single(WallSeconds wall, bool allDay) {
    if (allDay) return joined(";VALUE=DATE:", icalText(wall, true));
    return machine::wallOf(machine::unixSecondsOf(wall)) == wall ? joined(":", utc(wall)) : inZone({}, wall);
  }

  std::string inSeries(const ItemRecord& series, WallSeconds moment) {
    return series.allDay ? joined(";VALUE=DATE:", icalText(moment, true)) : inZone(series.zone, moment);
  }

  std::string inZone(std::optional<std::int64_t> id, WallSeconds moment) {
    const SeriesZone zone = zoneOf(id);
    if (zone.tzid.empty()) return joined(":", icalText(moment));
    if (zone.tzid == "UTC") return joined(":", icalText(moment)) + "Z";
    return joined(";TZID=\"", zone.tzid).append("\":").append(icalText(moment));
  }

  // Notes the zone's definition for the head of the file.
  SeriesZone zoneOf(std::optional<std::int64_t> id) {
    StoredZone zone{machine::zoneName().value_or(""), {}};
    if (id) {
      Statement rows = store_.prepare("SELECT tzid, definition FROM zones WHERE id = ?");
      if (rows.bind(*id).step()) {
        zone.tzid = rows.text(0);
        zone.definition = rows.text(1);
      }
    }
    const bool isDefined = !zone.tzid.empty() && zone.tzid != "UTC";
    return {isDefined ? nameOf(zone) : zone.tzid, mailbox_.zones.at(id)};
  }

  // Two calendars may have given different zones one name.
  const std::string& nameOf(const StoredZone& zone) {
    std::string name = zone.tzid;
    for (int number = 2;; ++number) {
      const auto known = zones_.try_emplace(name, zone).first;
      if (known->second == zone) return known->first;
      name = zone.tzid + " (" + std::to_string(number) + ")";
    }
  }

  Mailbox& mailbox_;
  Store& store_;
  IcsOutput items_;
  std::map<std::string, StoredZone> zones_;  // by their names in the file
  int count_ = 0;
};

[[noreturn]] void failTarget(const std::filesystem::path& file, const std::string& problem) {
  throw Failure(failure::automation,
                "The calendar file \"" + file.string() + "\" can't be written: " + problem + ". Name another one.",
                "Tarnel.Mailbox");
}

bool isDatabase(const std::filesystem::path& file) {
  std::error_code none;
  return std::filesystem::is_regular_file(file, none) && sqlite::FileHead(file).isDatabase();
}

// A calendar in the place of a mailbox or a task database would be the end of what they hold, and one in the place of a
// database's log the end of its last changes.
void requireNoStore(const std::filesystem::path& file) {
  if (isDatabase(file)) failTarget(file, "it is a mailbox or a database");
  std::filesystem::path owner = file;
  const std::string name = file.filename().string();
  for (const std::string_view ending : {"-wal", "-shm", "-journal"})
    if (name.ends_with(ending) && isDatabase(owner.replace_filename(name.substr(0, name.size() - ending.size()))))
      failTarget(file, "it belongs to the database \"" + owner.string() + "\"");
}

}  // namespace

std::string exportIcsText(Mailbox& mailbox) { return Export(mailbox).run(); }

int exportIcs(Mailbox& mailbox, const std::filesystem::path& file) {
  requireNoStore(file);
  Export all(mailbox);
  if (const std::error_code error = replaceFile(file, all.run())) failTarget(file, error.message());
  return all.count();
}

}  // namespace tarnel::mailbox
