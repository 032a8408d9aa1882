#pragma once

#include <list>
#include <mutex>
#include <optional>

#include "LoopbackServer.h"

namespace tarnel::test {

// An answer of the real server on its way to the client.
struct ProxiedAnswer {
  int status = 0;
  std::vector<std::pair<std::string, std::string>> headers;  // without those that tell lengths and connections
  std::string body;
  double part = 1;  // how much of it the client gets before the connection ends
};

// What goes wrong with a request and its answer.
struct Fault {
  std::function<bool(const Heard&)> concerns;
  std::function<void(Heard&)> onRequest;
  // In place of the server; it doesn't hear of the request then.
  std::function<ProxiedAnswer(const Heard&)> instead;
  std::function<void(const Heard&, ProxiedAnswer&)> onAnswer;
  int times = 1;  // -1: always
};

// Passes requests on to a server on this machine, with the faults that a test adds.
class FaultProxy {
 public:
  explicit FaultProxy(int serverPort);

  void add(Fault fault);
  // How many requests a fault has concerned so far.
  int faults() const { return count_; }
  LoopbackServer& server() { return server_; }

 private:
  bool pass(Heard request, Wire& wire);
  std::vector<Fault> concerning(const Heard& request);
  ProxiedAnswer asked(const Heard& request) const;

  int serverPort_;
  std::mutex mutex_;
  std::list<Fault> waiting_;
  std::atomic<int> count_ = 0;
  LoopbackServer server_;
};

// The faults that servers and the ways to them were seen to have. `method` is one of HTTP's, or "" for all.
namespace faults {

Fault cutBefore(const std::string& method);  // the server hears nothing
Fault cutAfter(const std::string& method);   // the server has acted, the client hears nothing
Fault halfBody(const std::string& method);   // a half with a length that is right for it
Fault answers(const std::string& method, int status, const std::string& headers = "", const std::string& body = "");
Fault emptyMultistatus(const std::string& method);
Fault shrunkMultistatus(const std::string& method, std::size_t keeps);
Fault lateListing(const std::string& item);     // lists leave out what has that in its address
enum class TagFault { missing, weak, packed };  // packed: "-gzip" added
Fault tags(TagFault fault);
Fault rewritten(const std::string& from, const std::string& to);  // in what is put, as the server stores it
enum class TokenFault { forbidden, serverError, fullList };
Fault refusedToken(TokenFault fault);
Fault renamed(const std::string& from, const std::string& to);    // an item's address, in requests and answers
Fault doubled(const std::string& item, const std::string& twin);  // an item is there under two addresses

}  // namespace faults

}  // namespace tarnel::test
