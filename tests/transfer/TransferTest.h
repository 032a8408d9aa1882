#pragma once

#include <gtest/gtest.h>

#include "Application.h"
#include "Conversions.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "TaskDatabase.h"
#include "TaskLists.h"
#include "TaskPicker.h"
#include "TaskTransfer.h"
#include "TestPlatform.h"
#include "m_OutlookWizard.h"

namespace tarnel {

// Both sides for real: a task database, a mailbox, and the lists as the form keeps them.
class TransferTest : public ::testing::Test {
 protected:
  TransferTest() {
    platform_.use(database_.provider);
    mailbox::createMailbox(mailboxPath_);
    platform_.use(outlook_);
    session().theszConnect = database_.connect();
    session().theImportanceNames = {"None", "Low", "Normal", "High", "Urgent"};
    session().theDifficultyNames = session().theImportanceNames;
    session().theDateFormats[dateFormat::hoursInDay] = "24";
    session().theDateFormats[dateFormat::dayStart] = "480";
    session().theDateFormats[dateFormat::dayEnd] = "1020";
    session().thePointsTable = {1, 2, 3, 4, 5, 10, 20, 30, 40, 50, 100, 200, 300, 1000, 2000};
    session().theProjectKeys = {"P1"};
    session().theProjectNames = {"Garden"};
    form_.formLoading = true;
    setupSkedPickTasksList(lists_.smtSkedPickTasks);
    setupSkedPickTasksSort(lists_.smtSkedPickTasks);
    putPickerOnStart(lists_.smtSkedPickTasks);
    form_.formLoading = false;
    user_->GetNamespace("MAPI")->Logon();
  }

  void addTask(const std::string& key, const std::string& desc = "Task") {
    database_.addTask(key, desc);
    database_.run("UPDATE TASKS SET tskProject = 'Any', tskProjectKey = 'P0' WHERE tskProject IS NULL");
  }

  // What a user does in Outlook.
  std::shared_ptr<outlook::TaskItem> makeItem(const std::string& subject, const std::string& guid = {}) {
    auto item = outlook::asTask(user_->CreateItem(outlook::ItemType::task));
    item->setSubject(subject);
    if (!guid.empty()) item->UserProperties()->Add(rowTag::tarnelGuid, outlook::PropertyType::text)->setValue(guid);
    item->Save();
    return item;
  }
  std::shared_ptr<outlook::TaskItem> item(std::int32_t index) { return outlook::asTask(tasks()->Item(index)); }
  std::shared_ptr<outlook::Items> tasks() { return folder(outlook::DefaultFolder::tasks); }
  std::shared_ptr<outlook::Items> folder(outlook::DefaultFolder id) {
    return user_->Session()->GetDefaultFolder(id)->items();
  }

  // One line an item, in the order of creation: subject|status|importance|due|total|actual|guid.
  std::string describe(outlook::DefaultFolder id = outlook::DefaultFolder::tasks) {
    std::string text;
    const auto items = folder(id);
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
      const auto task = outlook::asTask(items->Item(i));
      const auto guid = task->UserProperties()->Item(rowTag::tarnelGuid);
      text += task->subject() + "|" + std::to_string(static_cast<int>(task->Status())) + "|" +
              std::to_string(static_cast<int>(task->importance())) + "|" + isoText(task->dueDate()).substr(0, 10) +
              "|" + std::to_string(task->TotalWork()) + "|" + std::to_string(task->ActualWork()) + "|" +
              (guid ? textOrEmpty(guid->Value()) : "-") + "\n";
    }
    return text;
  }
  std::string stored(const std::string& columns) {
    return database_.describe("SELECT " + columns + " FROM TASKS ORDER BY tskGUIDID");
  }

  void fill() {
    lists_.refillTarnelList();
    lists_.GetOutlookTasks();
  }
  static void check(SmartUI& list, std::initializer_list<const char*> keys) {
    for (const char* key : keys) list.Items().Item(key).setChecked(true);
  }
  static void checkAll(SmartUI& list) {
    for (SmartItem& row : list.Items()) row.setChecked(true);
  }
  // caption|picture of each row.
  static std::string shown(const SmartUI& list) {
    std::string text;
    for (const SmartItem& row : list.Items()) text += row.Caption() + "|" + row.Picture() + "\n";
    return text;
  }
  std::string lastMessage() const {
    return platform_.desktop.messages.empty() ? "" : platform_.desktop.messages.back().text;
  }
  void answer(MessageAnswer answer) { platform_.desktop.answers.push_back(answer); }

  test::TaskDatabase database_;
  test::TestPlatform platform_;
  std::filesystem::path mailboxPath_ = database_.folder / "Mailbox.tarnel";
  mailbox::OutlookFactory outlook_{[](const std::string&) { return std::nullopt; }, mailboxPath_, Locale{},
                                   platform_.clock};
  std::shared_ptr<outlook::Application> user_ = outlook_.createApplication();
  FormState form_;
  TaskLists lists_{form_};
};

}  // namespace tarnel
