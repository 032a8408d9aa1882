#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "Failure.h"
#include "Http.h"

namespace tarnel::account {

enum class DavFault {
  offline,      // the server can't be reached now; nothing was done
  untrusted,    // its certificate or key is not the right one
  lost,         // the answer never came whole
  password,     // it wants a user and password, or others
  forbidden,    // it doesn't let this user
  absent,       // there is nothing at this address
  unsupported,  // it doesn't know how
  busy,         // it asks us to wait
  broken,       // it failed on its own account (5xx)
  refused,      // it doesn't take the request as it is
  noCalendar,   // what answers is no calendar server, or not at this address
  unreadable,   // its answer makes no sense
  stopped,      // we were asked to stop
};

// Why a question has no answer. Nothing may be concluded from it: above all not that something is gone.
class DavFailure : public Failure {
 public:
  DavFailure(DavFault fault, const std::string& text) : Failure(failure::automation, text), fault_(fault) {}
  // Of an answer that is none, or has another status than what was hoped for.
  DavFailure(const HttpAnswer& answer, std::vector<std::string> conditions);

  DavFault fault() const { return fault_; }
  int status() const { return status_; }  // 0: none came
  // The names in the server's own explanation, such as "valid-sync-token"; often none.
  const std::vector<std::string>& conditions() const { return conditions_; }
  bool names(std::string_view condition) const;
  std::optional<std::chrono::seconds> retryAfter() const { return retryAfter_; }
  const std::string& fingerprint() const { return fingerprint_; }  // of an untrusted server's key

 private:
  DavFault fault_;
  int status_ = 0;
  std::vector<std::string> conditions_;
  std::optional<std::chrono::seconds> retryAfter_;
  std::string fingerprint_;
};

// The names in the DAV:error that a refusal's body may be.
std::vector<std::string> conditionsOf(const std::string& body);

// "Forbidden (403)": what a status says, for people.
std::string statusText(int status);

}  // namespace tarnel::account
