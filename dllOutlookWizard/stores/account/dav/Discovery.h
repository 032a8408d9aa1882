#pragma once

#include <vector>

#include "CalendarCollection.h"

namespace tarnel::account {

// What is to be had at an address that a user gives.
struct Discovery {
  Url principal;  // who the server takes us for
  std::vector<Url> homes;
  std::vector<CalendarCollection> collections;
};

// Finds the user's lists and calendars from the server's address, or that of a user, a home or a single calendar, which
// is then the first of the collections (RFC 4791, RFC 6764; /.well-known/caldav). Throws DavFailure: what kept the
// address that leads nowhere from leading somewhere.
Discovery discover(DavConnection& dav, const Url& given);

}  // namespace tarnel::account
