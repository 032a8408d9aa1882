#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarnel {

// A GUID as its fields: 32 bits, twice 16 bits, eight bytes.
struct GuidFields {
  std::uint32_t data1 = 0;
  std::uint16_t data2 = 0;
  std::uint16_t data3 = 0;
  std::array<std::uint8_t, 8> data4{};
};

// Makes GUIDs: 36 characters, groups of 8, 4, 4, 4 and 12 upper-case hexadecimal digits joined by hyphens.
class CCreateGuid {
 public:
  // A random one (RFC 4122, version 4) from the operating system. Failure 0x800447E1 when that gives none.
  std::string Guid() const;

  static std::string text(const GuidFields& fields);
};

std::string GetANewGuid();

}  // namespace tarnel
