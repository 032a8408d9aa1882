#pragma once

#include <optional>
#include <string>
#include <vector>

#include "DavConnection.h"

namespace tarnel::account {

// A list of tasks or a calendar on the server.
struct CalendarCollection {
  Url url;  // its path ends with "/"
  std::string name;
  std::vector<std::string> components;  // "VTODO", "VEVENT"; empty when the server doesn't say, and all may go in
  bool writable = true;                 // as far as the server says
  bool syncs = false;                   // whether it says what has changed since a token
  std::string ctag;                     // another one after each change; empty when the server has none
  std::string syncToken;                // likewise
  std::string owner;                    // a path; owner and creation tell a collection from one made again in its place
  std::string created;                  // as the server writes it; empty when it doesn't say

  bool takes(std::string_view component) const;
};

// None for a resource that is no calendar.
std::optional<CalendarCollection> calendarIn(const DavResponse& response);

// The state of the collection at `url`. None when what is there is none; DavFailure as for any question.
std::optional<CalendarCollection> readCollection(DavConnection& dav, const Url& url);

// What to ask for so that calendarIn can read it.
extern const char* const collectionProperties;

}  // namespace tarnel::account
