#include "LocateDatabase.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"

namespace tarnel::test {
namespace {

struct LocateDatabaseTest : testing::Test {
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
  void arrange(const std::string& named, bool defaultIsThere) {
    session().theszConnect.clear();
    platform.desktop.messages.clear();
    std::filesystem::remove(inFolder("TarnelSettings.txt"));
    std::filesystem::remove(defaultDatabase);
    if (!named.empty()) platform.applicationFolder.write("TarnelSettings.txt", settingsFor(named));
    if (defaultIsThere) platform.applicationFolder.write("TarnelData.mdb", "any");
  }
  using Texts = std::vector<std::string>;

  TestPlatform platform;
  const std::string defaultDatabase = inFolder("TarnelData.mdb").string();
};

TEST_F(LocateDatabaseTest, takesTheNamedDatabaseOrTellsAndFallsBackToTheDefault) {
  const std::string elsewhere = platform.applicationFolder.write("my tasks.db", "any").string();
  const std::string gone = "/nowhere/gone.mdb";
  struct Case {
    std::string named;  // in the settings file; empty for none
    bool defaultIsThere;
    std::string found;
    Texts told;
  };
  for (const Case& c : {Case{"", true, defaultDatabase, {}},
                        {elsewhere, false, elsewhere, {}},
                        {gone, true, defaultDatabase, {missing(gone)}},
                        {gone, false, "", {missing(gone), missing(defaultDatabase)}}}) {
    arrange(c.named, c.defaultIsThere);
    EXPECT_EQ(LocateDatabase(), !c.found.empty()) << c.named;
    EXPECT_EQ(session().theszConnect, c.found.empty() ? "" : connect(c.found)) << c.named;
    EXPECT_EQ(settings(), settingsFor(c.found == elsewhere ? elsewhere : defaultDatabase)) << c.named;
    EXPECT_EQ(platform.desktop.messageTexts(), c.told) << c.named;
  }
  EXPECT_EQ(platform.desktop.messages.at(0).icon, MessageIcon::critical);
}

TEST_F(LocateDatabaseTest, lineEndsOfEitherKindAreReadAndKept) {
  const std::string elsewhere = platform.applicationFolder.write("my tasks.db", "any").string();
  for (const std::string& text : {"<Tarnel>\n<DBLoc>\n" + elsewhere + "\n</DBLoc>\n</Tarnel>\n",
                                  "<DBLoc>\n" + elsewhere + "\r\n</DBLoc>", "<DBLoc>\r\n" + elsewhere + "\n</DBLoc>"}) {
    platform.applicationFolder.write("TarnelSettings.txt", text);
    EXPECT_TRUE(LocateDatabase()) << text;
    EXPECT_EQ(session().theszConnect, connect(elsewhere));
    EXPECT_EQ(settings(), text);
  }
}

TEST_F(LocateDatabaseTest, aSettingsFileWithoutItsTagsIsToldAndLeftAlone) {
  const std::string told =
      "The Tarnel settings file, \"TarnelSettings.txt\", could not be found in (\"" +
      platform.applicationFolder.path().string() +
      "\" ).\r\nWithout this file, Tarnel cannot determine where its database resides. Please find "
      "this file and put it back!";
  for (const char* text : {"", "<DBLoc>", "</DBLoc>\r\n<DBLoc>\r\n", "<DBLoc></DBLoc>", "<DBLoc>\n</DBLoc>"}) {
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
}  // namespace tarnel::test
