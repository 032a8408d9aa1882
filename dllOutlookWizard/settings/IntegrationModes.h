#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "SmartItems.h"

namespace tarnel {

// One way for Tarnel and Outlook to live together, and its item on the settings tab. The user's numbers, in the
// captions, run 1 to 4; the stored ones 0 to 3.
struct IntegrationMode {
  const char* key;
  const char* caption;
  const char* note;
};

// By stored number.
using IntegrationModes = std::array<IntegrationMode, 4>;
extern const IntegrationModes taskModes;
extern const IntegrationModes apptModes;

// The mode whose item has this key; none when there is none.
std::optional<std::int32_t> modeOfKey(const IntegrationModes& modes, std::string_view key);
// The lowest mode whose item is checked; none when none is.
std::optional<std::int32_t> checkedMode(const IntegrationModes& modes, const SmartItems& items);

}  // namespace tarnel
