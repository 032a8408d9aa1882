#pragma once

#include <cstdint>

namespace tarnel {

// A 32-bit colour, red in the lowest byte, then green, then blue (OLE's COLORREF).
using Color = std::int32_t;
constexpr Color rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }

}  // namespace tarnel
