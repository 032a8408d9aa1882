#include "LocateDatabase.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

using test::contentsOf;

class LocateDatabaseTest : public testing::Test {
 protected:
  std::filesystem::path inFolder(std::string_view name) { return platform.applicationFolder / name; }
  std::string settingsFor(const std::filesystem::path& database) {
    return "<Tarnel>\r\n<DBLoc>\r\n" + database.string() + "\r\n</DBLoc>\r\n</Tarnel>\r\n";
  }
  std::string settings() { return contentsOf(inFolder("TarnelSettings.txt")); }
  std::string connect(const std::filesystem::path& database) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + database.string() + ";";
  }
  std::string missing(const std::filesystem::path& database) {
    return "The Tarnel data file, \"" + database.string() +
           "\", could not be found.\r\nWithout this file, Tarnel cannot work.\r\n\r\nTarnel will now check in " +
           platform.applicationFolder.path().string() +
           " in hopes of locating the originally installed datafile (TarnelData.mdb).";
  }
  using Texts = std::vector<std::string>;

  test::TestPlatform platform;
  std::filesystem::path defaultDatabase = inFolder("TarnelData.mdb");
};

TEST_F(LocateDatabaseTest, makesTheSettingsFileAndTakesTheDatabaseBesideIt) {
  platform.applicationFolder.write("TarnelData.mdb", "any");
  EXPECT_TRUE(LocateDatabase());
  EXPECT_EQ(settings(), settingsFor(defaultDatabase));
  EXPECT_EQ(session().theszConnect, connect(defaultDatabase));
  EXPECT_EQ(platform.desktop.messageTexts(), Texts{});
}

TEST_F(LocateDatabaseTest, takesTheDatabaseThatTheSettingsFileNames) {
  const auto elsewhere = platform.applicationFolder.write("my tasks.db", "any");
  platform.applicationFolder.write("TarnelSettings.txt", settingsFor(elsewhere));
  EXPECT_TRUE(LocateDatabase());
  EXPECT_EQ(session().theszConnect, connect(elsewhere));
  EXPECT_EQ(settings(), settingsFor(elsewhere));
}

TEST_F(LocateDatabaseTest, tellsOnceOfAMissingDatabaseAndFallsBackToTheDefault) {
  platform.applicationFolder.write("TarnelData.mdb", "any");
  platform.applicationFolder.write("TarnelSettings.txt", settingsFor("/nowhere/gone.mdb"));
  EXPECT_TRUE(LocateDatabase());
  EXPECT_EQ(platform.desktop.messageTexts(), Texts{missing("/nowhere/gone.mdb")});
  EXPECT_EQ(platform.desktop.messages.at(0).title, "Tarnel - Version 1.14");
  EXPECT_EQ(platform.desktop.messages.at(0).icon, MessageIcon::critical);
  EXPECT_EQ(settings(), settingsFor(defaultDatabase));
  EXPECT_EQ(session().theszConnect, connect(defaultDatabase));
}

TEST_F(LocateDatabaseTest, tellsTwiceWhenTheDefaultIsMissingToo) {
  platform.applicationFolder.write("TarnelSettings.txt", settingsFor("/nowhere/gone.mdb"));
  EXPECT_FALSE(LocateDatabase());
  EXPECT_EQ(platform.desktop.messageTexts(), (Texts{missing("/nowhere/gone.mdb"), missing(defaultDatabase)}));
  EXPECT_EQ(settings(), settingsFor(defaultDatabase));
  EXPECT_EQ(session().theszConnect, "");
}

TEST_F(LocateDatabaseTest, aSettingsFileWithoutItsTagsIsToldAndLeftAlone) {
  const std::string told =
      "The Tarnel settings file, \"TarnelSettings.txt\", could not be found in (\"" +
      platform.applicationFolder.path().string() +
      "\" ).\r\nWithout this file, Tarnel cannot determine where its database resides. Please find "
      "this file and put it back!";
  for (const char* text : {"", "<DBLoc>", "</DBLoc>\r\n<DBLoc>\r\n", "<DBLoc></DBLoc>"}) {
    platform.desktop.messages.clear();
    platform.applicationFolder.write("TarnelSettings.txt", text);
    EXPECT_FALSE(LocateDatabase()) << text;
    EXPECT_EQ(platform.desktop.messageTexts(), Texts{told}) << text;
    EXPECT_EQ(settings(), text);
  }
}

TEST_F(LocateDatabaseTest, aFolderThatCanNotBeWrittenIsTold) {
  std::filesystem::remove_all(platform.applicationFolder.path());
  EXPECT_FALSE(LocateDatabase());
  EXPECT_EQ(platform.desktop.messages.size(), 1U);
}

}  // namespace
}  // namespace tarnel
