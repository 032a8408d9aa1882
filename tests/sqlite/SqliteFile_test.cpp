#include <gtest/gtest.h>

#include "Database.h"
#include "Failure.h"
#include "TaskDatabase.h"

namespace tarnel::sqlite {
namespace {

using std::string_literals::operator""s;
using test::contentsOf;

class SqliteFileTest : public testing::Test {
 protected:
  // The failure's text of an open, which must have left all files of the folder as they were.
  std::string refusalOf(const std::filesystem::path& path) {
    const std::string before = contentsOf(path);
    std::string text = "opened";
    try {
      SqliteProvider().open("Provider=x;Data Source=" + path.string() + ";");
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), failure::engine);
      text = failure.description();
    }
    EXPECT_EQ(contentsOf(path), before);
    EXPECT_NE(text.find(path.string()), std::string::npos) << text;
    return text;
  }
  static bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

  test::TempFolder folder;
  test::TaskDatabase database;
};

TEST_F(SqliteFileTest, whatIsNoDatabaseIsNamedAndLeftAlone) {
  EXPECT_TRUE(has(refusalOf(folder / "missing.mdb"), "does not exist"));
  EXPECT_FALSE(std::filesystem::exists(folder / "missing.mdb"));
  EXPECT_TRUE(has(refusalOf(folder.path()), "is not a file"));
  EXPECT_TRUE(has(refusalOf(folder.write("a.txt", "Dear reader, this is a text and nothing else.\n")), "not a task"));
  EXPECT_TRUE(has(refusalOf(folder.write("empty.mdb", "")), "not a task"));
  EXPECT_TRUE(has(refusalOf(folder.write("jet.mdb", "\0\1\0\0Standard Jet DB\0"s + std::string(4096, '\1'))), "Jet"));
}

TEST_F(SqliteFileTest, aCutOrSpoiledFileIsNamedAndLeftAlone) {
  const std::string whole = contentsOf(database.path);
  ASSERT_GT(whole.size(), 8192U);
  for (const std::size_t length : {std::size_t{50}, std::size_t{100}, std::size_t{4096}, whole.size() - 1})
    EXPECT_TRUE(has(refusalOf(folder.write("cut.mdb", whole.substr(0, length))), "damaged")) << length;
  std::string spoiled = whole;
  spoiled.replace(100, 2000, 2000, '\x55');
  EXPECT_TRUE(has(refusalOf(folder.write("spoiled.mdb", spoiled)), "backup"));
}

TEST_F(SqliteFileTest, aFileMarkedReadOnlyIsNamed) {
  std::filesystem::permissions(database.path, std::filesystem::perms::owner_read);
  EXPECT_TRUE(has(refusalOf(database.path), "read-only"));
}

TEST_F(SqliteFileTest, aConnectionStringWithoutAFileSaysSo) {
  for (const char* text : {"Provider=x;", "Data Source=;", "nonsense"})
    EXPECT_THROW(SqliteProvider().open(text), Failure) << text;
}

TEST_F(SqliteFileTest, readingLeavesAForeignDatabaseAsItIs) {
  const auto foreign = folder / "foreign.db";
  Database(foreign, Database::Opening::orNew).run("CREATE TABLE notes (text)");
  const std::string before = contentsOf(foreign);
  const auto session = SqliteProvider().open("Data Source=" + foreign.string());
  EXPECT_EQ(session->query("SELECT * FROM notes").rows.size(), 0U);
  EXPECT_THROW(session->query("SELECT * FROM TASKS"), Failure);
  EXPECT_THROW(session->execute("DELETE FROM TASKS"), Failure);
  EXPECT_EQ(contentsOf(foreign), before);
}

TEST_F(SqliteFileTest, aSessionIsSharedWhileSomebodyHoldsIt) {
  auto first = database.open();
  EXPECT_EQ(database.provider.open("data source=\"" + database.path.string() + "\""), first);
  EXPECT_EQ(database.provider.open("Data Source=" + (database.folder / "x/../TarnelData.mdb").string()), first);
  const std::weak_ptr<ado::Session> watched = first;
  first.reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(SqliteFileTest, aLockedDatabaseIsReadAllTheSame) {
  database.addTask("A-1");
  const auto reader = database.open();
  Database other(database.path);
  Transaction writing(other);
  other.run("UPDATE TASKS SET tskDesc = 'half done'");
  EXPECT_EQ(database.describe("SELECT tskDesc FROM TASKS"), "Task\n");
}

}  // namespace
}  // namespace tarnel::sqlite
