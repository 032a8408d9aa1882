#include "DemoScript.h"

#include "SqlText.h"

namespace tarnel::host {
namespace {

// A literal of SQL for each kind of value.
std::string literal(const std::string& text) { return sqlText(text); }
std::string literal(int number) { return std::to_string(number); }
std::string literal(bool flag) { return flag ? "1" : "0"; }
std::string literal(Date date) { return sqlText(isoText(date)); }
template <class T>
std::string literal(const std::optional<T>& value) {
  return value ? literal(*value) : "NULL";
}

template <class... Values>
std::string insertRow(const char* table, const Values&... values) {
  std::string list;
  ((list += (list.empty() ? "" : ", ") + literal(values)), ...);
  return std::string("INSERT INTO ") + table + " VALUES (" + list + ");\n";
}

std::optional<std::string> linkMark(bool linked, const std::string& key) {
  return linked ? std::optional(key) : std::nullopt;
}

std::string taskRows(const DemoContents& contents) {
  std::string script;
  int order = 0;
  for (const DemoTask& task : contents.tasks) {
    const DemoProject& project = contents.projects[task.project];
    const std::optional<std::string> notes = task.notes.empty() ? std::nullopt : std::optional(task.notes);
    const Date changed = task.done ? *task.done : task.created;
    ++order;
    script +=
        insertRow("TASKS", task.key, task.description, notes, notes.has_value(), task.status, task.done, task.deadline,
                  project.name, project.key, task.current, task.importance, task.difficulty, task.minutesNeeded,
                  task.minutesSpent, task.minutesScheduled, task.points, task.hasChecklist, task.minutesScheduled > 0,
                  linkMark(task.linked, task.key), task.created, changed, order, order, order);
    for (const std::string& keyword : task.keywords) script += insertRow("TASKKEYWORDS", task.key, keyword);
  }
  return script;
}

}  // namespace

std::string demoScript(const DemoContents& contents) {
  std::string script;
  for (const DemoProject& project : contents.projects) script += insertRow("PROJECTS", project.key, project.name);
  script += taskRows(contents);
  for (const DemoAppointment& appointment : contents.appointments) {
    const DemoTask& task = contents.tasks[appointment.task];
    script += insertRow("TASKAPPTS", appointment.key, task.key, task.description, appointment.start, appointment.end,
                        linkMark(appointment.linked, appointment.key));
  }
  return script;
}

}  // namespace tarnel::host
