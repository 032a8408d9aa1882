#include <sys/wait.h>
#include <unistd.h>

#include "MailboxFixture.h"

namespace tarnel::mailbox {
namespace {

class OutlookFactoryTest : public MailboxTest {};

TEST_F(OutlookFactoryTest, outlookRunsWhileAnApplicationThatStartedItLives) {
  auto mine = factory(), others = factory();
  EXPECT_TRUE(contains(failureOf([&] { mine.activeApplication(); }), "429:"));
  auto started = mine.createApplication();
  auto second = mine.createApplication();
  started.reset();
  auto attached = others.activeApplication();
  attached->GetNamespace("MAPI")->Logon();
  EXPECT_EQ(attached->Session()->GetDefaultFolder(tasksFolder)->Name(), "Tasks");
  second.reset();
  EXPECT_TRUE(contains(failureOf([&] { others.activeApplication(); }), "429:"));
  EXPECT_FALSE(std::filesystem::exists(path_.string() + ".running"));
}

TEST_F(OutlookFactoryTest, anAttachedOneLogsOnToTheProfileThatOutlookRunsOn) {
  createMailbox(folder_ / "work.tarnelmail");
  auto mine = factory();
  auto started = mine.createApplication();
  started->Session()->Logon("Work");
  aTask(*started, "at work")->Save();
  auto attached = factory().activeApplication();
  attached->Session()->Logon();
  EXPECT_EQ(subjects(*itemsOf(*attached, tasksFolder)), "at work");
}

TEST_F(OutlookFactoryTest, theMarkOfAKilledProcessCountsForNothing) {
  int pipe[2];
  ASSERT_EQ(::pipe(pipe), 0);
  const pid_t child = fork();
  if (child == 0) {
    auto running = RunningOutlook::start(path_, "Work");
    if (!running || ::write(pipe[1], "+", 1) != 1) _exit(1);
    pause();
  }
  char ready = 0;
  ASSERT_EQ(::read(pipe[0], &ready, 1), 1);
  EXPECT_EQ(RunningOutlook::profile(path_), "Work");
  EXPECT_FALSE(RunningOutlook::start(path_));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_FALSE(RunningOutlook::profile(path_));
  EXPECT_TRUE(RunningOutlook::start(path_));
}

TEST_F(OutlookFactoryTest, aRefusedLogonLeavesTheSessionLoggedOff) {
  auto makers = factory();
  auto application = makers.createApplication();
  EXPECT_TRUE(contains(failureOf([&] { application->CreateItem(outlook::ItemType::task); }), "440: Outlook isn't"));
  application->Session()->Logon();
  EXPECT_TRUE(contains(failureOf([&] { application->Session()->Logon("Nobody"); }), "no profile \"Nobody\""));
  EXPECT_TRUE(contains(failureOf([&] { application->Session()->Logon("Work"); }), "work.tarnelmail\" can't be used"));
  EXPECT_TRUE(contains(failureOf([&] { application->Session()->GetDefaultFolder(tasksFolder); }), "440:"));
  EXPECT_TRUE(contains(failureOf([&] { application->GetNamespace("LDAP"); }), "5:"));
  application->Session()->Logon();
  EXPECT_TRUE(
      contains(failureOf([&] { application->Session()->GetDefaultFolder(outlook::DefaultFolder{77}); }), "440"));
}

TEST_F(OutlookFactoryTest, twoApplicationsSeeEachOthersItemsAtOnce) {
  auto makers = factory();
  auto one = makers.createApplication(), two = makers.createApplication();
  one->Session()->Logon();
  two->Session()->Logon();
  auto items = itemsOf(*two, tasksFolder);
  EXPECT_EQ(items->Count(), 0);
  aTask(*one, "a")->Save();
  EXPECT_EQ(items->Count(), 1);
  EXPECT_EQ(items->Item(1)->subject(), "a");
  auto elsewhere = loggedOn();
  aTask(*elsewhere, "b")->Save();
  EXPECT_EQ(subjects(*items), "a, b");
}

}  // namespace
}  // namespace tarnel::mailbox
