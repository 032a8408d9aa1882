#include <benchmark/benchmark.h>

#include <cstdlib>
#include <optional>

#include "Comparison.h"
#include "DaySchedules.h"
#include "Engine.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "SqliteProvider.h"
#include "TaskDatabaseScript.h"
#include "TestPlatform.h"
#include "createDatabase.h"
#include "m_OutlookWizard.h"

namespace tarnel::bench {
namespace {

constexpr int items = 20000;
constexpr int itemsOfDay = 50;  // a quarter of an hour apart, on each of 400 days
const std::string firstDay = "2026-01-01";

const std::string countUp =
    "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < " + std::to_string(items) + ") ";

std::string taskAppts() {
  return countUp +
         "INSERT INTO TASKAPPTS SELECT printf('%08X-7C1D-4A6E-9F30-5B2D8E1A4C77', i), 'T' || i, 'Work on matter ' || "
         "i, datetime('" +
         firstDay + "', (i / 50) || ' days', (i % 50 * 15 + 480) || ' minutes'), datetime('" + firstDay +
         "', (i / 50) || ' days', (i % 50 * 15 + 510) || ' minutes'), NULL FROM n;";
}

// Half of them copies of ours, with a link.
std::string appointments() {
  const std::string seconds = "(strftime('%s', '" + firstDay + "') - strftime('%s', '1899-12-30')) + i / 50 * 86400 + ";
  return countUp +
         "INSERT INTO items(folder, kind, subject, importance, sensitivity, status, percentComplete, dateCompleted, "
         "dueDate, totalWork, actualWork, startTime, endTime, location, allDay, reminderSet, recurrence, seriesStart, "
         "seriesEnd, weekdays, monthDays, uid, created, modified, body, extras) SELECT 9, 1, 'Meeting ' || i, 1, 0, 0, "
         "0, 0, 0, 0, 0, " +
         seconds + "i % 50 * 900 + 28800, " + seconds +
         "i % 50 * 900 + 30600, CASE i % 2 WHEN 0 THEN 'Tarnel' ELSE 'Room ' || i % 7 END, 0, 0, '', 0, 0, 0, 0, i || "
         "'@bench', 13440000000, 13440000000, '', '' FROM n;"
         "INSERT INTO names(id, name) VALUES(32768, 'BrackwellTarnelGUID');"
         "INSERT INTO userProperties(item, name, value) SELECT id, 32768, printf('%08X', id) FROM items WHERE id % 2;";
}

// Both schedules on both files.
class DaySides {
 public:
  DaySides()
      : tasks(platform_.applicationFolder / "tasks"),
        mailbox(platform_.applicationFolder / "mailbox"),
        outlook_([](const std::string&) { return std::nullopt; }, mailbox, Locale(), platform_.clock),
        schedules_(form_) {
    sqlite::createDatabase(tasks, host::taskDatabaseScript() + taskAppts());
    mailbox::createMailbox(mailbox);
    Engine(mailbox).run(appointments());
    platform_.use(provider_);
    platform_.use(outlook_);
    session().theszConnect = "Data Source=" + tasks.string() + ";";
    session().theDateFormats[dateFormat::apptColor] = "65280";
    session().theOutlookApptColor = 255;
    // The Tarnel list, which keeps the task database open.
    taskRows_.Open(provider_, "SELECT * FROM TASKS", session().theszConnect);
  }

  void show(int day) {
    form_.formCurDate = {Date::of(2026, 3, 1).days + day};
    schedules_.showFormDate();
    schedules_.refreshDay();
    if (schedules_.outlookSide.AppCount() != itemsOfDay) std::abort();
    if (schedules_.tarnelSide.AppCount() != itemsOfDay + itemsOfDay / 2) std::abort();
  }

 private:
  test::TestPlatform platform_;

 public:
  const std::filesystem::path tasks;
  const std::filesystem::path mailbox;

 private:
  sqlite::SqliteProvider provider_;
  ado::Recordset taskRows_;
  mailbox::OutlookFactory outlook_;
  FormState form_;
  DaySchedules schedules_;
};

// The baseline: the day's rows and items with all their columns and properties, statements prepared for the day.
void readDay(Engine& tasks, Engine& mailbox, int day) {
  const std::string from = "date('2026-03-01', '" + std::to_string(day) + " days')";
  EngineStatement rows(tasks, "SELECT * FROM TASKAPPTS WHERE taStartTime >= " + from + " AND taStartTime < date(" +
                                  from + ", '1 day') ORDER BY taStartTime");
  while (rows.step()) rows.readRow();
  const std::string midnight = "(strftime('%s', " + from + ") - strftime('%s', '1899-12-30'))";
  EngineStatement found(
      mailbox, "SELECT * FROM items WHERE folder = 9 AND recurrence = '' AND kind = 1 AND startTime >= " + midnight +
                   " AND startTime < " + midnight + " + 86400 ORDER BY startTime");
  EngineStatement properties(mailbox, "SELECT name, value FROM userProperties WHERE item = ?");
  while (found.step()) {
    found.readRow();
    properties.bind(1, found.number(0));
    while (properties.step()) properties.readRow();
    properties.finish();
  }
}

void dateChanges(benchmark::State& state) {
  DaySides sides;
  Engine tasks(sides.tasks), mailbox(sides.mailbox);
  Comparison comparison(state, Comparison::Time::wall, 3);
  int day = 0;
  for (auto _ : state) {
    day = (day + 7) % 300;
    comparison.baseline([&] { readDay(tasks, mailbox, day); });
    comparison.measured([&] { sides.show(day); });
  }
}
BENCHMARK(dateChanges)->Iterations(101)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnel::bench
