#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Url.h"

namespace tarnel::account {

struct HttpHeader {
  std::string name;
  std::string value;
};

struct HttpRequest {
  std::string method;
  Url url;
  std::vector<HttpHeader> headers;
  std::string body;
  // Takes the body of a 2xx answer part by part, as it comes; without it that body is in the answer. False when no more
  // of it is wanted.
  std::function<bool(std::string_view part)> take;

  // Whether the request changes nothing, so that it may be sent twice.
  bool isSafe() const;
};

// Why a request has no whole answer.
enum class HttpTrouble {
  none,
  refused,      // not sent: the address, a header or the state of the account forbids it
  notReached,   // not sent: no connection to the server
  untrusted,    // not sent: TLS could not be agreed upon, or the server's certificate or key is not the right one
  lost,         // the connection ended or fell silent; the server may have acted
  tooLarge,     // the answer is larger than the client takes
  badRedirect,  // the server sends us where we don't go
  unwanted,     // `take` wanted no more
  stopped,      // the client was asked to stop; the server may have acted
};

// What came of a request. An answer of any status is an answer; only what keeps it from coming whole is trouble.
struct HttpAnswer {
  int status = 0;                   // 0: none came; may be set beside trouble
  std::vector<HttpHeader> headers;  // of the last answer, not of those on the way (1xx, redirects, challenges)
  std::string body;                 // of an answer that is no 2xx only its beginning
  Url url;                          // what answered, after redirects
  std::optional<std::chrono::seconds> retryAfter;

  HttpTrouble trouble = HttpTrouble::none;
  std::string reason;       // a sentence, without secrets; empty without trouble
  std::string fingerprint;  // of the key of a server that is not trusted: "sha256//" and base64

  // The first header of that name, case ignored; none when there is none.
  std::optional<std::string> header(std::string_view name) const;
};

// Sends requests to the server of one account, for one thread at a time.
class HttpClient {
 public:
  virtual ~HttpClient() = default;

  using Next = std::function<std::optional<HttpRequest>()>;
  using Done = std::function<void(std::size_t nth, HttpAnswer answer)>;

  // Sends what `next` gives until it gives none, at most `parallel` at a time, and hands each answer to `done` once
  // with its request's number from 0; answers come in any order. What `next`, `done` or a `take` throws ends the
  // exchange, and requests on their way are abandoned. None of the three may use the client.
  virtual void exchange(const Next& next, const Done& done, int parallel) = 0;

  // One request and its answer.
  HttpAnswer send(HttpRequest request);
};

}  // namespace tarnel::account
