#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "Application.h"
#include "FailureOf.h"
#include "FixedClock.h"
#include "Mailbox.h"
#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "Redemption.h"
#include "TempFolder.h"

namespace tarnel::mailbox {

using test::contains;

// "number: text" of the failure that `act` ends in; "none" when it ends well.
template <class Act>
std::string failureOf(const Act& act) {
  return test::failureTextOf(act);
}

// A folder of its own for each test, with one empty mailbox in it, and Outlook logged on to it.
struct MailboxTest : testing::Test {
  MailboxTest() { createMailbox(path_); }

  OutlookFactory factory() {
    const auto profiles = [this](const std::string& profile) -> std::optional<std::filesystem::path> {
      if (profile == "Work") return folder_ / "work.tarnelmail";
      return {};
    };
    return {profiles, path_, Locale(), clock_};
  }
  std::shared_ptr<outlook::Application> loggedOn() {
    auto application = factory().createApplication();
    application->Session()->Logon();
    return application;
  }
  std::shared_ptr<Mailbox> openMailbox() { return std::make_shared<Mailbox>(path_, Locale(), clock_); }

  test::TempFolder folder_;
  std::filesystem::path path_ = folder_ / "mail.tarnelmail";
  test::FixedClock clock_;
};

inline std::shared_ptr<outlook::Items> itemsOf(outlook::Application& application, outlook::DefaultFolder folder) {
  return application.Session()->GetDefaultFolder(folder)->items();
}

// Subjects of the items of a walk, joined by ", ".
inline std::string subjects(outlook::Items& items) {
  std::string text;
  for (auto item = items.GetFirst(); item; item = items.GetNext()) text += (text.empty() ? "" : ", ") + item->subject();
  return text;
}

inline std::shared_ptr<outlook::TaskItem> aTask(outlook::Application& application, const std::string& subject) {
  auto task = std::dynamic_pointer_cast<outlook::TaskItem>(application.CreateItem(outlook::ItemType::task));
  task->setSubject(subject);
  return task;
}

inline std::shared_ptr<outlook::AppointmentItem> anAppointment(outlook::Application& application,
                                                               const std::string& subject, Date start,
                                                               std::int32_t minutes) {
  auto made =
      std::dynamic_pointer_cast<outlook::AppointmentItem>(application.CreateItem(outlook::ItemType::appointment));
  made->setSubject(subject);
  made->setStart(start);
  made->setDuration(minutes);
  made->Save();
  return made;
}

inline constexpr auto tasksFolder = outlook::DefaultFolder::tasks;
inline constexpr auto calendarFolder = outlook::DefaultFolder::calendar;
inline constexpr auto deletedFolder = outlook::DefaultFolder::deletedItems;
inline constexpr std::string_view linkName = "BrackwellTarnelGUID";

}  // namespace tarnel::mailbox
