#include "TaskQuery.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

std::string behindSelect(std::string_view sort, std::string_view pick, bool withCompleted = false) {
  const std::string query = taskQuery(sort, pick, withCompleted);
  return query.substr(query.find("from TASKS ") + 11);
}

TEST(TaskQuery, namesItsColumnsAsTheListNeedsThem) {
  const std::string query = taskQuery("", "T01", true);
  EXPECT_TRUE(query.starts_with("SELECT Tasks.tskDesc, Tasks.tskStatus, "));
  EXPECT_NE(query.find("Tasks.tskCurrent,  Tasks.tskGUIDID"), std::string::npos);
  EXPECT_NE(query.find("Tasks.tskTimeSpent,Tasks.tskOUTEntityID"), std::string::npos);
}

TEST(TaskQuery, completedTasksAreLeftOutUnlessAskedFor) {
  EXPECT_EQ(behindSelect("D00", "T00"),
            " WHERE Tasks.tskCurrent = TRUE  AND tskStatus <> 0  ORDER BY Tasks.tskPossPoints DESC");
  EXPECT_EQ(behindSelect("D00", "T00", true), " WHERE Tasks.tskCurrent = TRUE  ORDER BY Tasks.tskPossPoints DESC");
  EXPECT_EQ(
      behindSelect("zz", "T03"),
      " WHERE Tasks.tskTimeNeeded > 180 AND Tasks.tskImp > 2 AND Tasks.tskHasSchedule = FALSE AND tskStatus <> 0 ");
}

TEST(TaskQuery, theCustomOrderFollowsThePick) {
  EXPECT_TRUE(behindSelect("D01", "T00").ends_with(" ORDER BY Tasks.tskCustSortCur "));
  EXPECT_TRUE(behindSelect("D11", "T02").ends_with(" ORDER BY Tasks.tskCustSortTarnel "));
  EXPECT_TRUE(behindSelect("D01", "KEY").ends_with(" ORDER BY Tasks.tskCustSortProj "));
}

TEST(TaskQuery, aProjectKeyStaysInsideItsQuotes) {
  EXPECT_EQ(behindSelect("D36", "a' OR ''='", true),
            " WHERE Tasks.tskProjectKey = 'a'' OR ''''=''' ORDER BY Tasks.tskDeadline DESC ");
}

}  // namespace
}  // namespace tarnel
