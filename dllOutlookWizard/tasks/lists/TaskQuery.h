#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// The pick of the user's current tasks, which is also the start.
inline constexpr std::string_view currentTasksPick = "T00";
// Whether the code is one of the four picks that are always there, and no project's key.
bool isFixedPick(std::string_view pickCode);

// The statement of the Tarnel list, in Jet's SQL. `sortCode` is one of "D00" to "D36", any other gives no order;
// `pickCode` is one of "T00" to "T03", any other is a project's key.
std::string taskQuery(std::string_view sortCode, std::string_view pickCode, bool withCompleted);

}  // namespace tarnel
