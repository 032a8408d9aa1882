#pragma once

#include <string>

#include "CalendarCollection.h"
#include "ETag.h"

namespace tarnel::account {

// Takes what a listing of a collection tells, as it comes.
class ListingTaker {
 public:
  virtual ~ListingTaker() = default;

  // From here on comes a listing of all there is. What was told before is void; changes among it are told again.
  virtual void beginsFull() = 0;
  // An item is there, in this state; the ETag is none where the server has none.
  virtual void member(const Url& url, const ETag& etag) = 0;
  // Nothing is there. That may never have been otherwise: some servers tell of items that were gone before the token.
  virtual void gone(const Url& url) = 0;
  // All of a page was told; the next one may fail.
  virtual void endsPage() = 0;
  // Whether the item had this state already when the token was given. A list of changes has no reason to name those,
  // and one server answers a token that it has forgotten with all there is.
  virtual bool knew(const Url& url, const ETag& etag) const = 0;
};

struct ListingEnd {
  bool full = false;      // the last beginsFull() began a complete listing; else all changes since the token were told
  std::string syncToken;  // for the next time; empty when the collection can only be listed in full
};

// Lists what has changed since `token`, or all when it is empty, no longer taken, or the server keeps no account of
// changes. Throws DavFailure; what was told by then is true, but not all, and nothing may be concluded from what
// wasn't.
ListingEnd listCollection(DavConnection& dav, const Url& collection, const std::string& token, ListingTaker& taker);

}  // namespace tarnel::account
