#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "DavConnection.h"
#include "ETag.h"

namespace tarnel::account {

// A change to make on the server.
struct DavWrite {
  enum class Kind { create, update, remove, move, makeCalendar };

  Kind kind = Kind::create;
  Url url;
  ETag etag;         // update, remove, move: only in this state; none for whatever state
  std::string body;  // create, update: the item's text; makeCalendar: of bodies::makeCalendar
  Url destination;   // move

  HttpRequest request() const;
};

// What it means for the change, whatever way the server chose to say it.
enum class DavVerdict {
  done,
  look,         // the state there is not the one that was expected: it may be our own, from an earlier try
  absent,       // nothing is there
  unsupported,  // the server doesn't know how; for a move: write the new one and remove the old one
  refused,      // it doesn't take this change; no use in trying again as it is
  password,     // it wants a user and password, or others
  busy,         // not done; it asks us to wait
  notSent,      // the server was not reached
  unknown,      // it may or may not be done
};

struct DavWritten {
  DavVerdict verdict = DavVerdict::unknown;
  int status = 0;                       // the one that counts: of a 207 the worst of those inside
  ETag etag;                            // of the new state; none or weak: read the item back
  std::vector<std::string> conditions;  // names of what is wrong, such as "no-uid-conflict"
  std::optional<std::chrono::seconds> retryAfter;
  std::string text;         // for people; empty when done
  std::string fingerprint;  // of an untrusted server's key
};

// What an answer says of the change. Xandikos answers a refused one with a 207 that has a 412 inside.
DavWritten readWritten(const DavWrite& write, const HttpAnswer& answer);

using NextWrite = std::function<std::optional<DavWrite>()>;
using WriteDone = std::function<void(std::size_t nth, DavWritten written)>;

// Makes the changes that `next` gives until it gives none, at most `parallel` at a time; `done` hears of each once.
void writeAll(HttpClient& http, const NextWrite& next, const WriteDone& done, int parallel);

DavWritten writeOne(HttpClient& http, const DavWrite& write);

}  // namespace tarnel::account
