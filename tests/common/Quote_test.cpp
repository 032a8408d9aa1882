#include "Quote.h"

#include <gtest/gtest.h>

#include "TestPlatform.h"

namespace tarnel::test {
namespace {

TEST(Quote, quotesWithoutDoublingInsideAndNeverANull) {
  TestPlatform platform;
  EXPECT_EQ(Quote("a\"b"), "\"a\"b\"");
  EXPECT_EQ(Quote(Null{}), "");
  ASSERT_EQ(platform.errorReport.reports.size(), 1U);
  EXPECT_EQ(platform.errorReport.reports[0].procedure, "Quote");
  EXPECT_EQ(platform.errorReport.reports[0].number, 94);
}

}  // namespace
}  // namespace tarnel::test
