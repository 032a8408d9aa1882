#pragma once

#include <array>
#include <cstddef>

#include "Date.h"

namespace tarnel {

// Slots of FormState::meSizes, which are also the order of their settings.
namespace meSize {
inline constexpr std::size_t left = 0;
inline constexpr std::size_t top = 1;
inline constexpr std::size_t width = 2;
inline constexpr std::size_t height = 3;
inline constexpr std::size_t taskSplit = 4;  // share of the form's width, as is the next
inline constexpr std::size_t apptSplit = 5;
inline constexpr std::size_t count = 6;
}  // namespace meSize

// What the wizard form shares with its tabs.
struct FormState {
  bool formLoading = false;  // change events of controls do nothing while it is set
  bool formClosing = false;  // set once shown: unloading neither saves nor raises CloseWiz then
  Date formCurDate;
  std::array<float, meSize::count> meSizes{};  // twips, then shares
};

}  // namespace tarnel
