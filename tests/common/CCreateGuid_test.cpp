#include "CCreateGuid.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace tarnel {
namespace {

TEST(CCreateGuid, makesRandomGuidsOfVersionFourInTheirFullWidth) {
  const std::regex shape("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
  std::set<std::string> guids;
  for (int i = 0; i < 1000; ++i) {
    const std::string guid = GetANewGuid();
    EXPECT_TRUE(std::regex_match(guid, shape)) << guid;
    guids.insert(guid);
  }
  EXPECT_EQ(guids.size(), 1000U);
}

}  // namespace
}  // namespace tarnel
