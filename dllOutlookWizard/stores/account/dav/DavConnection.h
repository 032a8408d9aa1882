#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Http.h"
#include "XmlElement.h"

namespace tarnel::account {

// The status of a collection that has more than the server lists at a time (RFC 6578, 3.6); no refusal.
inline constexpr int moreToList = 507;

// What a 207 tells of one resource.
struct DavResponse {
  Url url;
  int status = 0;                       // of the resource as a whole; 0 when only its properties have one
  std::vector<XmlElement> properties;   // those that the server gives (2xx)
  std::vector<std::string> conditions;  // why not, where it says so

  // Null when the server doesn't give it.
  const XmlElement* property(std::string_view space, std::string_view name) const;
  // Its text without blanks around it; empty when the server doesn't give it.
  std::string text(std::string_view space, std::string_view name) const;
};

struct DavQuery {
  std::string method;  // PROPFIND, REPORT
  Url url;
  std::string depth;  // "0", "1"
  std::string body;
};

// Asks a WebDAV server (RFC 4918).
class DavConnection {
 public:
  explicit DavConnection(HttpClient& http) : http_(http) {}

  struct End {
    Url url;                // that answered, after redirects
    std::string syncToken;  // empty when there was none
    std::size_t count = 0;  // responses
  };

  // Hands on each response of the 207 as it comes. Throws DavFailure for any other answer, and for one that breaks off:
  // what was handed on by then is true, but not all.
  End ask(const DavQuery& query, const std::function<void(DavResponse&&)>& take);

  // The only response of a question of depth 0.
  DavResponse askOne(const Url& url, const std::string& body);

  HttpClient& http() const { return http_; }

 private:
  HttpClient& http_;
};

// The responses in an element DAV:response: one for each of its addresses. Throws DavFailure for one that has none, or
// one of another host than `from`.
std::vector<DavResponse> responsesIn(XmlElement&& element, const Url& from);

}  // namespace tarnel::account
