#include "Identifiers.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tarnel {

bool same(const TarnelGuid& one, const TarnelGuid& other) {
  return one.data1 == other.data1 && one.data2 == other.data2 && one.data3 == other.data3 &&
         std::equal(std::begin(one.data4), std::end(one.data4), std::begin(other.data4));
}

std::string textOf(const TarnelGuid& id) {
  std::array<char, 40> text{};
  const auto& last = id.data4;
  std::snprintf(text.data(), text.size(), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.data1, id.data2,
                id.data3, last[0], last[1], last[2], last[3], last[4], last[5], last[6], last[7]);
  return text.data();
}

}  // namespace tarnel
