#pragma once

#include <gtest/gtest.h>

#include "CurlClient.h"
#include "LoopbackServer.h"

namespace tarnel::account {

inline Url urlOf(const std::string& text) { return parseUrl(text).value(); }

inline HttpRequest aRequest(const std::string& method, const std::string& url, const std::string& body = "") {
  return {method, urlOf(url), {}, body, {}};
}

inline std::string nameOf(HttpTrouble trouble) {
  constexpr const char* names[] = {"",         "refused",     "notReached", "untrusted", "lost",
                                   "tooLarge", "badRedirect", "unwanted",   "stopped"};
  return names[static_cast<int>(trouble)];
}

// "status trouble body".
inline std::string described(const HttpAnswer& answer) {
  return std::to_string(answer.status) + " " + nameOf(answer.trouble) + " " + answer.body;
}

}  // namespace tarnel::account
