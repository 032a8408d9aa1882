#include "TaskFields.h"

#include <gtest/gtest.h>

#include <limits>

#include "Application.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "Redemption.h"
#include "TaskDatabase.h"
#include "TestPlatform.h"

namespace tarnel::test {
namespace {

using outlook::Importance;
using outlook::TaskStatus;

const Variant none = Null{};

// One row of TASKS and one Outlook task, both with values of their own, neither written.
struct TaskFieldsTest : testing::Test {
  TaskFieldsTest() : outlook_([](const std::string&) { return std::nullopt; }, mailbox_, Locale(), platform_.clock) {
    mailbox::createMailbox(mailbox_);
    application_ = outlook_.createApplication();
    application_->Session()->Logon();
    wrapper_ = outlook_.createSafeTaskItem();
    database_.addTask("A", "Ours", {{"tskDeadline", "'2026-01-05 00:00:00'"}, {"tskTimeSpent", "7"}});
    openBatch(row_, database_, "SELECT * FROM TASKS");
    for (std::size_t i = 0; i < session().thePointsTable.size(); ++i) session().thePointsTable[i] = 1 << i;
  }

  void newItem() {
    item_ = outlook::asTask(application_->CreateItem(outlook::ItemType::task));
    item_->setSubject("Theirs");
    item_->setDueDate(Date::of(2026, 2, 6));
    wrapper_->setItem(item_);
  }
  std::string item() const {
    return item_->subject() + " " + std::to_string(int(item_->Status())) + " " +
           std::to_string(int(item_->importance())) + " " + std::to_string(item_->TotalWork()) + "/" +
           std::to_string(item_->ActualWork()) + " " + isoText(item_->dueDate()).substr(0, 10);
  }
  std::string row(std::initializer_list<const char*> columns) {
    std::string text;
    for (const char* column : columns) {
      const Variant value = row_.Fields(column).Value();
      text += (text.empty() ? "" : " ") + (value.isNull() ? "-" : toText(value));
    }
    return text;
  }

  TestPlatform platform_;
  TaskDatabase database_;
  std::filesystem::path mailbox_ = platform_.applicationFolder / "Outlook.mailbox";
  mailbox::OutlookFactory outlook_;
  std::shared_ptr<outlook::Application> application_;
  std::unique_ptr<outlook::SafeTaskItem> wrapper_;
  std::shared_ptr<outlook::TaskItem> item_;
  ado::Recordset row_;
};

TEST_F(TaskFieldsTest, eachFieldGoesToOutlookAndOneOutsideTheMappingStays) {
  const Date day = Date::of(2026, 12, 1);
  const struct {
    Variant status, importance, needed, spent, deadline;
    const char* item;
  } cases[] = {
      {0, 0, 90, 30, day, "Ours 2 0 90/30 2026-12-01"},
      {1, 1, none, 30, none, "Ours 1 0 0/30 2026-02-06"},
      {2, 2, 90, none, Date{1}, "Ours 3 1 90/0 2026-02-06"},
      {3, 3, 1, 2, Date{2}, "Ours 0 2 1/2 1900-01-01"},
      {4, 4, 1, 2, Date::of(2501, 1, 1), "Ours 3 2 1/2 2501-01-01"},
      {-1, 5, 1, 2, Date::of(9999, 12, 31), "Ours 3 1 1/2 2026-02-06"},
      {none, none, 1, 2, Date{0}, "Ours 3 1 1/2 2026-02-06"},
  };
  for (const auto& each : cases) {
    newItem();
    item_->setStatus(TaskStatus::waiting);
    row_.Fields("tskStatus").setValue(each.status);
    row_.Fields("tskImp").setValue(each.importance);
    row_.Fields("tskTimeNeeded").setValue(each.needed);
    row_.Fields("tskTimeSpent").setValue(each.spent);
    row_.Fields("tskDeadline").setValue(each.deadline);
    writeTaskToItem(row_, *item_);
    EXPECT_EQ(item(), each.item);
  }
}

TEST_F(TaskFieldsTest, eachFieldComesFromOutlookWhereItHoldsAny) {
  const struct {
    TaskStatus status;
    Importance importance;
    std::int32_t total, actual;
    Date due;
    const char* row;  // status, importance, minutes needed and spent, deadline, points
  } cases[] = {
      {TaskStatus::notStarted, Importance::low, 0, 0, Date::of(2026, 12, 1), "3 0 10 7 2026-12-01 00:00:00 1057"},
      {TaskStatus::inProgress, Importance::normal, 11, 1, Date::of(2500, 12, 31), "1 2 11 1 2500-12-31 00:00:00 2084"},
      {TaskStatus::complete, Importance::high, 119, 2, Date::of(2501, 1, 1), "0 4 119 2 2026-01-05 00:00:00 2096"},
      {TaskStatus::waiting, Importance::high, 120, 3, Date::of(4501, 1, 1), "3 4 120 3 2026-01-05 00:00:00 4144"},
  };
  for (const auto& each : cases) {
    newItem();
    item_->setStatus(each.status);
    item_->setImportance(each.importance);
    item_->setTotalWork(each.total);
    item_->setActualWork(each.actual);
    item_->setDueDate(each.due);
    row_.Fields("tskTimeSpent").setValue(7);
    row_.Fields("tskDeadline").setValue(Date::of(2026, 1, 5));
    writeItemToTask(*wrapper_, row_, TaskRow::existing);
    EXPECT_EQ(row({"tskDesc", "tskStatus", "tskImp", "tskTimeNeeded", "tskTimeSpent", "tskDeadline", "tskPossPoints"}),
              std::string("Theirs ") + each.row);
  }
}

TEST_F(TaskFieldsTest, notesGrowAndOnlyAFreshRowTakesItsStart) {
  const auto told = [this] {
    return row({"tskNotes", "tskHasNotes", "tskHasChecklist", "tskHasSchedule", "tskCreatedDate", "tskLastMod"});
  };
  newItem();
  row_.Fields("tskNotes").setValue("old ");
  row_.Fields("tskHasChecklist").setValue(true);
  row_.Fields("tskHasSchedule").setValue(true);
  row_.Fields("tskDifficulty").setValue(3);
  writeItemToTask(*wrapper_, row_, TaskRow::existing);
  EXPECT_EQ(told(), "old  True True True - 2026-11-19 08:30:00");
  // Importance 2, difficulty 3, little time, checklist, schedule.
  EXPECT_EQ(row({"tskPossPoints"}), std::to_string((1 << 2) + (1 << 8) + (1 << 10) + (1 << 13) + (1 << 14)));
  row_.AddNew();
  writeItemToTask(*wrapper_, row_, TaskRow::fresh);
  EXPECT_EQ(told(), "- False False False 2026-11-19 08:30:00 2026-11-19 08:30:00");
}

}  // namespace
}  // namespace tarnel::test
