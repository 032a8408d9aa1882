#include "CCreateGuid.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace tarnel {
namespace {

TEST(CCreateGuid, keepsTheFullWidthOfEachField) {
  EXPECT_EQ(CCreateGuid::text({0x1, 0xA, 0xFFFF, {0x0, 0x1, 0x2, 0x3, 0x4, 0x5, 0x6, 0xF0}}),
            "00000001-000A-FFFF-0001-0203040506F0");
  EXPECT_EQ(CCreateGuid::text({0x80000000, 0x8000, 0, {}}), "80000000-8000-0000-0000-000000000000");
}

TEST(CCreateGuid, makesRandomGuidsOfVersionFour) {
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
