#include "CCreateGuid.h"

#include <unistd.h>

#include <cstring>
#include <string_view>

#include "StandardHandler.h"

namespace tarnel {
namespace {

// At least `width` digits, filled with "0" on the left.
std::string hex(std::uint32_t value, std::size_t width, bool hyphen = false) {
  static constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text(width, '0');
  for (std::size_t i = width; i-- > 0; value >>= 4) text[i] = digits[value & 15U];
  if (hyphen) text += '-';
  return text;
}

}  // namespace

std::string CCreateGuid::text(const GuidFields& fields) {
  std::string result = hex(fields.data1, 8, true) + hex(fields.data2, 4, true) + hex(fields.data3, 4, true);
  for (std::size_t i = 0; i < fields.data4.size(); ++i) result += hex(fields.data4[i], 2, i == 1);
  return result;
}

std::string CCreateGuid::Guid() const {
  std::array<std::uint8_t, 16> random{};
  if (getentropy(random.data(), random.size()) != 0)
    throw Failure(static_cast<std::int32_t>(0x800447E1), "CCreateGuid component failure",
                  "TarnelOutWizard.CCreateGuid");
  GuidFields fields;
  std::memcpy(&fields.data1, random.data(), 4);
  std::memcpy(&fields.data2, random.data() + 4, 2);
  std::memcpy(&fields.data3, random.data() + 6, 2);
  std::memcpy(fields.data4.data(), random.data() + 8, 8);
  fields.data3 = static_cast<std::uint16_t>((fields.data3 & 0x0FFFU) | 0x4000U);   // version 4: random
  fields.data4[0] = static_cast<std::uint8_t>((fields.data4[0] & 0x3FU) | 0x80U);  // variant of RFC 4122
  return text(fields);
}

std::string GetANewGuid() {
  return standardHandler<std::string>(modules::m_OutlookWizard, "GetANewGuid",
                                      [](std::string& guid) { guid = CCreateGuid().Guid(); });
}

}  // namespace tarnel
