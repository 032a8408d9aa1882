#include "manageOutlookRef.h"

#include <gtest/gtest.h>

#include "MailboxFile.h"
#include "OutlookFactory.h"
#include "TestPlatform.h"

namespace tarnel::test {
namespace {

// An Outlook that notes how it is asked for and can be out of reach.
struct Asked : NoOutlook {
  explicit Asked(outlook::ClassFactory& outlook) : real(outlook) {}
  std::shared_ptr<outlook::Application> activeApplication() override {
    log += "active ";
    return isRunning ? real.activeApplication() : NoOutlook::activeApplication();
  }
  std::shared_ptr<outlook::Application> createApplication() override {
    log += "create ";
    return --refusals >= 0 ? NoOutlook::createApplication() : real.createApplication();
  }
  std::unique_ptr<outlook::MAPIUtils> createMAPIUtils() override {
    log += "utils ";
    return real.createMAPIUtils();
  }

  outlook::ClassFactory& real;
  bool isRunning = false;
  int refusals = 0;
  std::string log;
};

struct ManageOutlookRef : testing::Test {
  ManageOutlookRef() {
    for (const auto& file : {own_, work_}) mailbox::createMailbox(file);
    platform_.use(asked_);
  }
  std::string attached() {
    asked_.log.clear();
    platform_.desktop.messages.clear();
    const bool reached = manageOutlookRef();
    std::string told = asked_.log + (reached ? "reached" : "out of reach");
    for (const std::string& text : platform_.desktop.messageTexts()) told += ", " + text.substr(0, 40);
    return told;
  }

  TestPlatform platform_;
  std::filesystem::path own_ = platform_.applicationFolder / "own.mailbox";
  std::filesystem::path work_ = platform_.applicationFolder / "work.mailbox";
  mailbox::OutlookFactory real_{
      [this](const std::string& name) { return name == "Work" ? std::optional(work_) : std::nullopt; }, own_, Locale(),
      platform_.clock};
  Asked asked_{real_};
};

TEST_F(ManageOutlookRef, runningOutlookIsTakenElseStartedAndAProfileHasItsOwn) {
  const auto running = real_.createApplication();
  running->Session()->Logon();
  asked_.isRunning = true;
  EXPECT_EQ(attached(), "active reached");
  const auto store = [] { return outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::tasks)->StoreID(); };
  const std::string own = store();
  asked_.isRunning = false;
  EXPECT_EQ(attached(), "active create reached");
  session().theOutlookProfile = "Work";
  EXPECT_EQ(attached(), "create reached");
  EXPECT_NE(store(), own);
  session().theOutlookProfile = "Nobody's";
  EXPECT_EQ(attached(), "create create out of reach, Tarnel cannot properly access Microsoft ");
  EXPECT_EQ(platform_.desktop.messages[0].icon, MessageIcon::critical);
  EXPECT_NE(platform_.desktop.messages[0].text.find("email support@tarnel.example so"), std::string::npos);
  session().theOutlookProfile = "Work";
  asked_.refusals = 1;
  EXPECT_EQ(attached(), "create create reached") << "a second attempt";
}

TEST_F(ManageOutlookRef, eventsThatLetGoOfOutlookAreMadeGoodWhereItWasAttached) {
  int rounds = 0;
  platform_.desktop.onEvents = [&] {
    ++rounds;
    releaseOutlook();
  };
  letEventsRunAttached(3);
  EXPECT_EQ(rounds, 3);
  EXPECT_EQ(session().theOutlookNS, nullptr) << "it was not attached before";
  platform_.desktop.onEvents = nullptr;
  attached();
  platform_.desktop.onEvents = [] { releaseOutlook(); };
  asked_.log.clear();
  letEventsRunAttached(1);
  EXPECT_EQ(asked_.log, "active create ");
  EXPECT_NE(session().theOutlookNS, nullptr);
  closeOutlook();
  EXPECT_EQ(asked_.log, "active create utils ");
  EXPECT_EQ(session().theOutlookApp, nullptr);
  rounds = 0;
  platform_.desktop.onEvents = [&] { ++rounds; };
  letEventsRun();
  EXPECT_EQ(rounds, 2);
  EXPECT_THROW(outlookNameSpace(), Failure);
}

}  // namespace
}  // namespace tarnel::test
