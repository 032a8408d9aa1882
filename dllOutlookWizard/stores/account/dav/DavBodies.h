#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnel::account {

// The questions that are put to a calendar server, as XML. `properties` holds elements such as "<d:getetag/>", with
// the prefixes d (WebDAV), c (CalDAV) and s (calendarserver.org).
namespace bodies {

// WebDAV's (RFC 4918, 9.1).
std::string propfind(std::string_view properties);
// What has changed since the token was given; all there is for an empty one (RFC 6578).
std::string syncCollection(std::string_view token);
// ETag and text of all items of one kind, "VTODO" or "VEVENT". No span of time: servers leave items out of those that
// they should name.
std::string calendarQuery(std::string_view component);
// ETag and text of the items at these paths.
std::string multiget(const std::vector<std::string>& paths);
std::string makeCalendar(std::string_view name, const std::vector<std::string>& components);

}  // namespace bodies

}  // namespace tarnel::account
