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
  for (std::size_t at = 0; at < 36; ++at) {
    std::set<char> seen;
    for (const std::string& guid : guids) seen.insert(guid[at]);
    const bool fixed = at == 8 || at == 13 || at == 14 || at == 18 || at == 23;
    EXPECT_EQ(seen.size(), fixed ? 1U : at == 19 ? 4U : 16U) << at;
  }
}

}  // namespace
}  // namespace tarnel
