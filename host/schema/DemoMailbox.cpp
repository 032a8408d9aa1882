#include "DemoMailbox.h"

namespace tarnel::host {
namespace {

constexpr const char* lineEnd = "\r\n";

Date at(Date today, int day, int hour, int minute = 0) {
  CivilTime civil = Date{today.wholeDay().days + day}.civil();
  civil.hour = hour;
  civil.minute = minute;
  return Date::of(civil);
}

// "20261119T083000" and "20261119": wall times of the place where they are read.
std::string dateTime(Date date) {
  std::string text;
  for (const char c : isoText(date))
    if (c != '-' && c != ':') text += c == ' ' ? 'T' : c;
  return text;
}
std::string day(Date date) { return dateTime(date).substr(0, 8); }

std::string icsText(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == ',' || c == ';' || c == '\\') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

class Calendar {
 public:
  explicit Calendar(Date today) : today_(today) {
    line("BEGIN:VCALENDAR");
    line("VERSION:2.0");
    line("PRODID:-//Tarnel//Demo//EN");
  }

  Calendar& line(const std::string& text) {
    text_ += text + lineEnd;
    return *this;
  }
  Calendar& begin(const char* kind, const std::string& uid, const std::string& summary) {
    kind_ = kind;
    return line("BEGIN:" + kind_)
        .line("UID:" + uid)
        .line("DTSTAMP:20000101T000000Z")
        .line("SUMMARY:" + icsText(summary));
  }
  Calendar& linked(const std::string& key) { return line("X-TARNEL-USER-PROPERTY;X-NAME=BrackwellTarnelGUID:" + key); }
  Calendar& times(Date start, Date end) { return line("DTSTART:" + dateTime(start)).line("DTEND:" + dateTime(end)); }
  void end() { line("END:" + kind_); }

  // `due` in days from today.
  void task(const char* uid, const char* summary, int due, const char* status, int priority) {
    begin("VTODO", uid, summary).line("DUE;VALUE=DATE:" + day(at(today_, due, 0)));
    line(std::string("STATUS:") + status).line("PRIORITY:" + std::to_string(priority)).end();
  }
  void appointment(const char* uid, const char* summary, Date start, Date end, const char* location) {
    begin("VEVENT", uid, summary).times(start, end).line(std::string("LOCATION:") + location).end();
  }

  std::string text() { return line("END:VCALENDAR").text_; }

 private:
  Date today_;
  std::string text_;
  std::string kind_;
};

const char* statusOf(const DemoTask& task) {
  if (task.done) return "COMPLETED";
  return task.status == 1 ? "IN-PROCESS" : "NEEDS-ACTION";
}

// iCalendar counts from 1, the highest, to 9.
int priorityOf(const DemoTask& task) { return task.importance > 2 ? 1 : task.importance == 2 ? 5 : 9; }

void addLinked(Calendar& calendar, const DemoContents& contents) {
  for (const DemoTask& task : contents.tasks) {
    if (!task.linked) continue;
    calendar.begin("VTODO", task.key, task.description).linked(task.key);
    if (task.deadline) calendar.line("DUE;VALUE=DATE:" + day(*task.deadline));
    calendar.line(std::string("STATUS:") + statusOf(task)).line("PRIORITY:" + std::to_string(priorityOf(task)));
    if (task.done) calendar.line("COMPLETED:" + dateTime(*task.done) + "Z");
    calendar.line("X-TARNEL-TOTAL-WORK:" + std::to_string(task.minutesNeeded));
    calendar.line("X-TARNEL-ACTUAL-WORK:" + std::to_string(task.minutesSpent)).end();
  }
  for (const DemoAppointment& appointment : contents.appointments) {
    if (!appointment.linked) continue;
    calendar.begin("VEVENT", appointment.key, contents.tasks[appointment.task].description).linked(appointment.key);
    calendar.times(appointment.start, appointment.end).line("LOCATION:Tarnel").end();
  }
}

// Every week at this weekday and hour since ten weeks ago; the next one was moved to the afternoon.
void addSeries(Calendar& calendar, Date today) {
  const char* uid = "demo-team-meeting";
  const char* title = "Team meeting";
  calendar.begin("VEVENT", uid, title).times(at(today, -70, 13, 15), at(today, -70, 14)).line("LOCATION:Room 4");
  calendar.line("RRULE:FREQ=WEEKLY;COUNT=30").end();
  calendar.begin("VEVENT", uid, title).line("RECURRENCE-ID:" + dateTime(at(today, 7, 13, 15)));
  calendar.times(at(today, 7, 15, 30), at(today, 7, 16, 15)).line("LOCATION:Room 2").end();
}

}  // namespace

std::string demoMailbox(const DemoContents& contents, Date today) {
  Calendar calendar(today);
  addLinked(calendar, contents);
  calendar.task("demo-task-1", "Sign the lease for the new office", 4, "NEEDS-ACTION", 1);
  calendar.task("demo-task-2", "Answer Mr. Okafor's letter", -1, "NEEDS-ACTION", 5);
  calendar.task("demo-task-3", "Prepare the yearly review", 12, "IN-PROCESS", 5);
  calendar.task("demo-task-4", "Order business cards", 20, "NEEDS-ACTION", 9);
  calendar.task("demo-task-5", "Hand in the travel expenses", -8, "COMPLETED", 5);
  calendar.appointment("demo-event-1", "Coffee with Priya", at(today, 0, 15, 30), at(today, 0, 16), "Corner Cafe");
  calendar.appointment("demo-event-2", "Call with the printer", at(today, 0, 9, 30), at(today, 0, 10), "Phone");
  calendar.appointment("demo-event-3", "Parents' evening", at(today, 1, 18), at(today, 1, 19, 30), "School");
  calendar.appointment("demo-event-4", "Car inspection", at(today, 3, 8), at(today, 3, 9), "Garage");
  calendar.appointment("demo-event-5", "Project retrospective", at(today, -2, 14), at(today, -2, 15, 30), "Room 4");
  calendar.begin("VEVENT", "demo-event-6", "Spring fair").line("DTSTART;VALUE=DATE:" + day(at(today, 5, 0)));
  calendar.line("DTEND;VALUE=DATE:" + day(at(today, 7, 0))).line("LOCATION:Fairground").end();
  addSeries(calendar, today);
  return calendar.text();
}

}  // namespace tarnel::host
