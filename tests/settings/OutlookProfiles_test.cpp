#include "CRegistry.h"
#include "FailureOf.h"
#include "OutlookProfilesKey.h"
#include "Profiles.h"
#include "SettingsTabTest.h"

namespace tarnel::test {
namespace {

struct OutlookProfilesTest : SettingsTabTest {
  // The drop-down: entries as key or key=caption, then the text on show.
  std::string shown() {
    std::string text;
    for (const SmartItem& entry : item("PRO1").SubItems())
      text += (entry.Key() == entry.Caption() ? entry.Key() : entry.Key() + "=" + entry.Caption()) + "; ";
    return text + note("PRO1");
  }
  void add(const std::string& name) { profiles_.add(name, "/mail/" + name + ".mailbox"); }
  std::int32_t refusal(const std::string& name) {
    return failureOf([&] { add(name); });
  }

  Profiles profiles_{platform_.registry};
};

TEST_F(OutlookProfilesTest, areListedOnceEachAndTheLastOneShownIsNotChosen) {
  session().theOutlookProfile = "NONE";
  add("Home");
  add("Work");
  EXPECT_FALSE(item("PRO1").Visible());
  EXPECT_TRUE(tab_.SetupForProfiles());
  EXPECT_TRUE(tab_.SetupForProfiles());
  EXPECT_EQ(shown(), "Home; Work; Work");
  for (const char* key : {"PRO", "PRO1", "PRO2", "PRONOTE"}) EXPECT_TRUE(item(key).Visible());
  EXPECT_EQ(session().theOutlookProfile, "NONE");
  EXPECT_EQ(happened(), "");
  EXPECT_FALSE(state_.formLoading);
}

TEST_F(OutlookProfilesTest, aChosenOneCountsAtOnceLocksAndIsNotTakenBack) {
  add("Home");
  add("R&D \"2/3\"");
  tab_.SetupForProfiles();
  choose("PRO1", 0);
  EXPECT_EQ(happened(), "lock ");
  choose("PRO1", 1);
  EXPECT_EQ(session().theOutlookProfile, "R&&D \"2/3\"");
  tab_.setTheSettings();
  tab_.SetupForProfiles();
  EXPECT_EQ(shown(), "Home; R&&D \"2/3\"; R&&D \"2/3\"");
  EXPECT_EQ(profiles_.mailboxOfChosen(session().theOutlookProfile), "/mail/R&D \"2/3\".mailbox");
}

TEST_F(OutlookProfilesTest, withoutTheKeyOutlooksDefaultReplacesALostProfile) {
  const std::string outlooksDefault = "NONE=Outlook Default; Outlook Default";
  session().theOutlookProfile.clear();
  tab_.SetupForProfiles();
  EXPECT_EQ(shown(), outlooksDefault);
  EXPECT_EQ(session().theOutlookProfile, "");
  EXPECT_EQ(happened(), "");

  add("Gone");
  tab_.SetupForProfiles();
  session().theOutlookProfile = "Gone";
  profiles_.remove("Gone");
  tab_.SetupForProfiles();
  EXPECT_EQ(shown(), outlooksDefault);
  EXPECT_EQ(session().theOutlookProfile, "NONE");
  EXPECT_EQ(happened(), "lock ");  // only "UPDATE" tells the host
  EXPECT_TRUE(reports().empty());
}

TEST_F(OutlookProfilesTest, aKeyWithoutProfilesIsAFailureUnlessOneIsInForce) {
  platform_.registry.createKey(CRegistry::pathOf(rootKey::currentUser, outlookProfilesKey));
  session().theOutlookProfile = "Gone";
  EXPECT_TRUE(tab_.SetupForProfiles());
  EXPECT_EQ(shown(), "Gone");
  session().theOutlookProfile.clear();
  EXPECT_FALSE(tab_.SetupForProfiles());
  ASSERT_EQ(reports().size(), 1U);
  EXPECT_EQ(reports()[0].number, failure::subscript);
}

TEST_F(OutlookProfilesTest, canBeAddedUnderNamesThatAKeyCanBear) {
  EXPECT_EQ(refusal("Tom's \"A/B\" & Söhne"), 0);
  EXPECT_EQ(refusal("tom's \"a/b\" & Söhne"), failure::keyNotUnique);
  for (const char* name : {"", "  ", "a\\b", "a\nb", "none"}) EXPECT_EQ(refusal(name), failure::invalidCall) << name;
  EXPECT_EQ(refusal(std::string(256, 'x')), failure::invalidCall);
  EXPECT_THROW(profiles_.add("Empty", ""), Failure);
  ASSERT_EQ(profiles_.list().size(), 1U);
  EXPECT_EQ(profiles_.list()[0].mailbox, "/mail/Tom's \"A/B\" & Söhne.mailbox");
}

TEST_F(OutlookProfilesTest, theLastRemovedOneLeavesNoKey) {
  add("Home");
  add("Work");
  EXPECT_THROW(profiles_.remove("Wor"), Failure);
  profiles_.remove("work");
  EXPECT_EQ(profiles_.mailboxOf("Work"), std::nullopt);
  EXPECT_EQ(profiles_.mailboxOf("HOME"), "/mail/Home.mailbox");
  profiles_.remove("Home");
  tab_.SetupForProfiles();
  EXPECT_EQ(shown(), "NONE=Outlook Default; Outlook Default");
}

TEST_F(OutlookProfilesTest, aRegistryThatCantBeWrittenIsTold) {
  struct WriteProtected : FileRegistry {
    using FileRegistry::FileRegistry;
    bool createKey(std::string_view) override { return false; }
    bool setValue(std::string_view, std::string_view, const Variant&) override { return false; }
    bool deleteKey(std::string_view) override { return false; }
    bool deleteValue(std::string_view, std::string_view) override { return false; }
  } registry(platform_.applicationFolder / "registry");
  add("Home");
  Profiles profiles(registry);
  EXPECT_EQ(failureOf([&] { profiles.add("Work", "/mail/Work.mailbox"); }), failure::pathAccess);
  EXPECT_EQ(failureOf([&] { profiles.remove("Home"); }), failure::pathAccess);
}

TEST_F(OutlookProfilesTest, aRegistryRaisesItsOwnFailures) {
  CRegistry registry;
  registry.Init(rootKey::currentUser);
  const auto invalid = thrownBy([&] { registry.KeyExists(""); });
  ASSERT_TRUE(invalid);
  EXPECT_EQ(invalid->number(), -2147203503);
  EXPECT_EQ(invalid->description(), "Invalid KeyName value");
  EXPECT_EQ(invalid->source(), "TarnelOutWizard.CRegistry");
  platform_.applicationFolder.write("registry", "something else\n");
  std::vector<std::string> names;
  EXPECT_EQ(failureTextOf([&] { registry.GetAllSubKeys("SOFTWARE", names); }),
            "-2147203501: CRegistry component failure");
}

}  // namespace
}  // namespace tarnel::test
