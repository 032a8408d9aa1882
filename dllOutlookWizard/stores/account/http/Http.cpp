#include "Http.h"

#include <algorithm>
#include <array>
#include <utility>

#include "Conversions.h"

namespace tarnel::account {

bool HttpRequest::isSafe() const {
  constexpr std::array safe = {"GET", "HEAD", "OPTIONS", "PROPFIND", "REPORT"};
  return std::find(safe.begin(), safe.end(), method) != safe.end();
}

std::optional<std::string> HttpAnswer::header(std::string_view name) const {
  const auto found = std::find_if(headers.begin(), headers.end(),
                                  [&](const HttpHeader& header) { return equalsIgnoringCase(header.name, name); });
  return found == headers.end() ? std::nullopt : std::optional(found->value);
}

HttpAnswer HttpClient::send(HttpRequest request) {
  HttpAnswer result;
  bool given = false;
  exchange(
      [&]() -> std::optional<HttpRequest> {
        if (std::exchange(given, true)) return {};
        return std::move(request);
      },
      [&](std::size_t, HttpAnswer answer) { result = std::move(answer); }, 1);
  return result;
}

}  // namespace tarnel::account
