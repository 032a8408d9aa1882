#include "IcsItem.h"

#include <algorithm>
#include <charconv>

#include "Conversions.h"
#include "Recurrence.h"

namespace tarnel::mailbox {
namespace {

// Reads one component property by property; what it doesn't know goes to the record's extras as it is written.
class ItemReader {
 public:
  ItemReader(const IcsComponent& component, const IcsTimes& times, WallSeconds now)
      : component_(component), times_(times), now_(now) {
    item_.line = component.line;
    item_.record.kind = isTask() ? outlook::ItemType::task : outlook::ItemType::appointment;
    item_.record.folder = isTask() ? folderId::tasks : folderId::calendar;
    item_.record.body.emplace();
    item_.record.extras.emplace();
  }

  IcsItem read() {
    for (const IcsProperty& property : component_.properties) {
      if (!isUtf8(property.line.text)) fail(property, "isn't UTF-8 text");
      if (!takeCommon(property) && !(isTask() ? takeTask(property) : takeEvent(property)))
        *item_.record.extras += property.line.text + "\n";
    }
    for (const IcsLine& line : component_.nested) {
      *item_.record.extras += line.text + "\n";
      if (equalsIgnoringCase(line.text, "BEGIN:VALARM")) item_.record.reminderSet = true;
    }
    if (item_.record.uid.empty()) throw BadComponent{{component_.line, "the " + component_.kind + " has no UID"}};
    if (isTask())
      finishTask();
    else
      finishEvent();
    return std::move(item_);
  }

 private:
  bool isTask() const { return component_.kind == "VTODO"; }

  [[noreturn]] static void fail(const IcsProperty& property, const std::string& problem) {
    throw BadComponent{{property.line.number, property.name + " " + problem}};
  }

  static std::int64_t number(const IcsProperty& property, std::int64_t largest, std::int64_t smallest = 0) {
    std::int64_t value = 0;
    const char* end = property.value.data() + property.value.size();
    const auto [stop, error] = std::from_chars(property.value.data(), end, value);
    if (error != std::errc{} || stop != end || value < smallest || value > largest)
      fail(property, "takes a whole number from " + std::to_string(smallest) + " to " + std::to_string(largest));
    return value;
  }

  bool takeCommon(const IcsProperty& property) {
    ItemRecord& record = item_.record;
    if (property.name == "UID")
      record.uid = property.value;
    else if (property.name == "SUMMARY")
      record.subject = unescaped(property.value);
    else if (property.name == "DESCRIPTION")
      record.body = unescaped(property.value);
    else if (property.name == "PRIORITY")
      record.importance = importanceOf(number(property, 9));
    else if (property.name == "CLASS")
      record.sensitivity = sensitivityOf(toUpper(property.value));
    else if (property.name == "RECURRENCE-ID")
      takeRecurrenceId(property);
    else if (property.name == ics::userProperty)
      takeUserProperty(property);
    else
      // When a file was made says nothing of the item.
      return property.name == "DTSTAMP";
    return true;
  }

  // RFC 5545: 1 to 4 high, 5 normal, 6 to 9 low, 0 undefined.
  static std::int64_t importanceOf(std::int64_t priority) {
    using outlook::Importance;
    const Importance importance = priority == 0 || priority == 5 ? Importance::normal
                                  : priority < 5                 ? Importance::high
                                                                 : Importance::low;
    return static_cast<std::int64_t>(importance);
  }

  // Outlook's numbers (OlSensitivity): 2 private, 3 confidential. A class that isn't known counts as private.
  static std::int64_t sensitivityOf(const std::string& name) {
    if (name == "PUBLIC") return 0;
    return name == "CONFIDENTIAL" ? 3 : 2;
  }

  void takeRecurrenceId(const IcsProperty& property) {
    if (!property.parameter("RANGE").empty()) fail(property, "with a RANGE can't be taken");
    item_.recurrenceId = times_.read(property);
  }

  void takeUserProperty(const IcsProperty& property) {
    const std::string name = property.parameter(ics::userPropertyName);
    if (name.empty()) fail(property, "has no X-NAME");
    item_.properties.push_back({name, unescaped(property.value)});
  }

  bool takeTask(const IcsProperty& property) {
    ItemRecord& record = item_.record;
    if (property.name == "STATUS")
      status_ = toUpper(property.value);
    else if (property.name == ics::status)
      waiting_ = property.value == "WAITING";
    else if (property.name == "PERCENT-COMPLETE")
      record.percentComplete = number(property, 100);
    else if (property.name == "COMPLETED")
      record.dateCompleted = midnightOf(times_.inMachine(times_.read(property)));
    else if (property.name == "DUE")
      record.dueDate = midnightOf(times_.inMachine(times_.read(property)));
    else if (property.name == "DTSTART")
      taskStart_ = times_.inMachine(times_.read(property));
    else if (property.name == "DURATION")
      duration_ = readDuration(property);
    else if (property.name == ics::totalWork)
      record.totalWork = number(property, INT32_MAX, INT32_MIN);
    else if (property.name == ics::actualWork)
      record.actualWork = number(property, INT32_MAX, INT32_MIN);
    else
      return false;
    return true;
  }

  void finishTask() {
    using outlook::TaskStatus;
    ItemRecord& record = item_.record;
    if (taskStart_) {
      if (duration_ && record.dueDate == noDate) record.dueDate = midnightOf(*taskStart_ + *duration_);
      // A due date is a day, and a to-do's start takes the same form.
      *record.extras += "DTSTART;VALUE=DATE:" + icalText(midnightOf(*taskStart_), true) + "\n";
    }
    TaskStatus status = TaskStatus::notStarted;
    if (status_ == "IN-PROCESS") status = TaskStatus::inProgress;
    if (waiting_) status = TaskStatus::waiting;
    // A cancelled task is not to be done any more.
    if (status_ == "COMPLETED" || status_ == "CANCELLED") status = TaskStatus::complete;
    if (status_.empty() && (record.dateCompleted != noDate || record.percentComplete == 100))
      status = TaskStatus::complete;
    setTaskStatus(record, status, now_);
    if (item_.recurrenceId) record.original = times_.inMachine(*item_.recurrenceId);
  }

  bool takeEvent(const IcsProperty& property) {
    if (property.name == "DTSTART")
      start_ = times_.read(property);
    else if (property.name == "DTEND")
      end_ = times_.read(property);
    else if (property.name == "DURATION")
      duration_ = readDuration(property);
    else if (property.name == "LOCATION")
      item_.record.location = unescaped(property.value);
    else if (property.name == "RRULE" || property.name == "RDATE" || property.name == "EXDATE")
      repeated_.push_back(&property);
    else if (property.name == "EXRULE")
      fail(property, "can't be taken: rules of exception are not known here");
    else
      return takeStatus(property);
    return true;
  }

  bool takeStatus(const IcsProperty& property) {
    if (property.name == "STATUS") item_.cancelled = equalsIgnoringCase(property.value, "CANCELLED");
    return false;
  }

  void finishEvent() {
    ItemRecord& record = item_.record;
    if (!start_) throw BadComponent{{component_.line, "the VEVENT has no DTSTART"}};
    if (end_ && end_->isDate != start_->isDate)
      throw BadComponent{{component_.line, "DTSTART and DTEND are not of one form"}};
    record.allDay = start_->isDate;
    record.start = times_.inMachine(*start_);
    record.end = record.start + (record.allDay ? secondsPerDay : 0);
    if (end_) record.end = times_.inMachine(*end_);
    if (duration_) record.end = record.start + *duration_;
    if (record.end < record.start) throw BadComponent{{component_.line, "the VEVENT ends before it starts"}};
    if (record.allDay && record.end == record.start) record.end += secondsPerDay;
    item_.tzid = start_->tzid;
    for (const IcsProperty* property : repeated_) takeRepetition(*property);
    if (!record.recurrence.empty()) record.seriesStart = start_->wall;
    if (item_.recurrenceId) {
      if (!record.recurrence.empty()) throw BadComponent{{component_.line, "an exception has rules of its own"}};
      record.original = times_.inMachine(*item_.recurrenceId);
    }
  }

  void takeRepetition(const IcsProperty& property) {
    std::string& recurrence = item_.record.recurrence;
    if (property.name == "RRULE") {
      const auto rule = normalizedRule(property.value, start_->wall, start_->isDate, times_.zone(item_.tzid));
      if (!rule) fail(property, "\"" + property.value + "\" is no rule that can be taken");
      recurrence += "RRULE:" + *rule + "\n";
      return;
    }
    const IcsSeries series{start_->wall, start_->isDate, item_.tzid, times_.zone(item_.tzid)};
    std::string_view values = property.value;
    while (!values.empty()) {
      const std::size_t end = std::min(values.find(','), values.size());
      // A period gives its start, and then its end.
      const std::string_view value = values.substr(0, std::min(values.substr(0, end).find('/'), end));
      const WallSeconds moment = times_.inSeries(series, times_.read(property, value));
      values.remove_prefix(std::min(end + 1, values.size()));
      if (property.name == "EXDATE")
        item_.deleted.push_back(moment);
      else
        recurrence += "RDATE:" + icalText(moment, start_->isDate) + "\n";
    }
  }

  const IcsComponent& component_;
  const IcsTimes& times_;
  WallSeconds now_;
  IcsItem item_;
  std::string status_;
  bool waiting_ = false;
  std::optional<IcsTime> start_;
  std::optional<IcsTime> end_;
  std::optional<WallSeconds> taskStart_;
  std::optional<WallSeconds> duration_;
  std::vector<const IcsProperty*> repeated_;
};

}  // namespace

IcsItem readIcsItem(const IcsComponent& component, const IcsTimes& times, WallSeconds now) {
  return ItemReader(component, times, now).read();
}

}  // namespace tarnel::mailbox
