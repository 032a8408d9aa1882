#pragma once

#include <cstdint>

namespace tarnel {

// A topic of the whole host's help, which callers know by its number alone.
struct HelpTopic {
  std::int32_t first;  // the numbers that mean it, both included
  std::int32_t last;
  const char* file;  // in the help folder
  const char* title;
};

namespace helpNumber {
inline constexpr std::int32_t outlookWizard = 250;
inline constexpr std::int32_t tour = 7000;
}  // namespace helpNumber

// None for a number that no topic has.
const HelpTopic* findHelpTopic(std::int32_t HelpNum);

}  // namespace tarnel
