#include "createDatabase.h"

#include <gtest/gtest.h>

#include "Failure.h"
#include "SqliteProvider.h"
#include "TempFolder.h"

namespace tarnel::sqlite {
namespace {

class CreateDatabaseTest : public testing::Test {
 protected:
  std::size_t fileCount() {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
  }
  test::TempFolder folder;
  std::filesystem::path path = folder / "new.db";
};

TEST_F(CreateDatabaseTest, makesOneFileThatOpens) {
  createDatabase(path, "CREATE TABLE a (x TEXT); INSERT INTO a VALUES ('it''s; here');");
  EXPECT_EQ(fileCount(), 1U);
  const auto session = SqliteProvider().open("Data Source=" + path.string());
  EXPECT_EQ(session->query("SELECT x FROM a").rows.unpacked(), (std::vector<ado::Row>{{"it's; here"}}));
}

TEST_F(CreateDatabaseTest, leavesWhatStandsThereAlone) {
  folder.write("new.db", "precious");
  EXPECT_THROW(createDatabase(path, "CREATE TABLE a (x)"), Failure);
  EXPECT_EQ(test::contentsOf(path), "precious");
  EXPECT_EQ(fileCount(), 1U);
}

TEST_F(CreateDatabaseTest, aStatementThatFailsLeavesNothingBehind) {
  EXPECT_THROW(createDatabase(path, "CREATE TABLE a (x); INSERT INTO b VALUES (1)"), Failure);
  EXPECT_THROW(createDatabase(folder / "none/new.db", "CREATE TABLE a (x)"), Failure);
  EXPECT_EQ(fileCount(), 0U);
}

}  // namespace
}  // namespace tarnel::sqlite
