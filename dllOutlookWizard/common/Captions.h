#pragma once

#include <string>
#include <string_view>

#include "SmartItems.h"

namespace tarnel {

// Doubles every "&", so that a caption shows it instead of underlining the next letter.
std::string ZapAmps(const std::string& text);
// The text that ZapAmps had made this of.
std::string unzapAmps(std::string_view caption);

// The first entry of a drop-down whose caption is the item's Value; null when none is.
SmartItem* GetItemSelected(SmartItem& item);

}  // namespace tarnel
