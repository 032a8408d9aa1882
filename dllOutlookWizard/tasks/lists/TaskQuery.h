#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// The statement behind the Tarnel list, in Jet's SQL. `sortCode` is one of "D00" to "D36", any other gives no order;
// `pickCode` is one of "T00" to "T03", any other is a project's key.
std::string taskQuery(std::string_view sortCode, std::string_view pickCode, bool withCompleted);

}  // namespace tarnel
