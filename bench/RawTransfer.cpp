#include "RawTransfer.h"

#include <string>
#include <vector>

#include "Schema.h"

namespace tarnel::bench {
namespace {

constexpr const char* linkName = "BrackwellTarnelGUID";

struct Task {
  std::string guid;
  std::string description;
  std::int64_t importance;
  std::int64_t needed;
  std::int64_t spent;
};

// Read whole before the first write, as the wizard does: an open reading would keep the log from being written back.
std::vector<Task> readTasks(Engine& tasks) {
  EngineStatement rows(tasks, "SELECT tskGUIDID, tskDesc, tskImp, tskTimeNeeded, tskTimeSpent FROM TASKS");
  std::vector<Task> all;
  while (rows.step())
    all.push_back(
        {std::string(rows.text(0)), std::string(rows.text(1)), rows.number(2), rows.number(3), rows.number(4)});
  return all;
}

}  // namespace

RawTransfer::RawTransfer(const std::filesystem::path& tasks, const std::filesystem::path& mailbox)
    : tasks_(tasks), mailbox_(mailbox) {
  tasks_.run("PRAGMA synchronous = FULL; PRAGMA cache_size = -8192");
  mailbox_.run("PRAGMA synchronous = NORMAL; PRAGMA foreign_keys = ON");
  mailbox_.run("INSERT OR IGNORE INTO names(id, name) VALUES(" + std::to_string(mailbox::schema::firstNameId) + ", '" +
               linkName + "')");
  EngineStatement name(mailbox_, "SELECT id FROM names WHERE name = ?");
  name.bind(1, linkName).step();
  linkName_ = name.number(0);
}

void RawTransfer::copyAll() {
  EngineStatement mark(tasks_, "UPDATE TASKS SET tskOUTEntityID = ?1 WHERE tskGUIDID = ?1");
  EngineStatement item(
      mailbox_,
      "INSERT INTO items(folder, kind, subject, importance, sensitivity, status, percentComplete, dateCompleted, "
      "dueDate, totalWork, actualWork, startTime, endTime, location, allDay, reminderSet, recurrence, seriesStart, "
      "seriesEnd, weekdays, monthDays, uid, created, modified, body, extras) VALUES(13, 3, ?1, ?2, 0, 1, 0, 0, "
      "13440009600, ?3, ?4, 0, 0, '', 0, 0, '', 0, 0, 0, 0, lower(hex(randomblob(16))) || '@tarnel', 13440000000, "
      "13440000000, '', '')");
  EngineStatement link(mailbox_, "INSERT INTO userProperties(item, name, value) VALUES(last_insert_rowid(), ?, ?)");
  for (const Task& task : readTasks(tasks_)) {
    mark.bind(1, task.guid).finish();
    mailbox_.run("BEGIN IMMEDIATE");
    item.bind(1, task.description).bind(2, task.importance).bind(3, task.needed).bind(4, task.spent).finish();
    link.bind(1, linkName_).bind(2, task.guid).finish();
    mailbox_.run("COMMIT");
  }
}

void RawTransfer::updateAll() {
  EngineStatement search(mailbox_,
                         "SELECT i.id FROM userProperties p JOIN items i ON i.id = p.item WHERE p.name = ? AND "
                         "p.value = ? AND +i.folder = 13");
  EngineStatement item(mailbox_, "SELECT * FROM items WHERE id = ?");
  EngineStatement change(mailbox_, "UPDATE items SET subject = ?, totalWork = ?, modified = ? WHERE id = ?");
  for (const Task& task : readTasks(tasks_)) {
    search.bind(1, linkName_).bind(2, task.guid).step();
    const std::int64_t id = search.number(0);
    search.finish();
    item.bind(1, id).step();
    item.readRow();
    item.finish();
    mailbox_.run("BEGIN IMMEDIATE");
    change.bind(1, task.description).bind(2, task.needed).bind(3, std::int64_t{13440000060}).bind(4, id).finish();
    mailbox_.run("COMMIT");
  }
}

}  // namespace tarnel::bench
