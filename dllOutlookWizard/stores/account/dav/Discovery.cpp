#include "Discovery.h"

#include <algorithm>

#include "DavBodies.h"
#include "DavFailure.h"

namespace tarnel::account {
namespace {

// The addresses in a property such as calendar-home-set.
std::vector<Url> urlsIn(const DavResponse& response, std::string_view space, std::string_view name) {
  std::vector<Url> urls;
  if (const XmlElement* property = response.property(space, name))
    for (const XmlElement& href : property->children)
      if (href.is(xml::dav, "href"))
        if (const auto url = resolveUrl(response.url, href.trimmed())) urls.push_back(*url);
  return urls;
}

std::string startProperties() {
  return std::string(collectionProperties) + "<d:current-user-principal/><c:calendar-home-set/>";
}

bool wantsUser(const DavResponse& response) {
  const XmlElement* principal = response.property(xml::dav, "current-user-principal");
  return principal && principal->child(xml::dav, "unauthenticated");
}

// Whether another address of the same server may do better.
bool concernsAddress(DavFault fault) {
  return fault == DavFault::absent || fault == DavFault::noCalendar || fault == DavFault::unsupported ||
         fault == DavFault::refused || fault == DavFault::forbidden;
}

class Search {
 public:
  explicit Search(DavConnection& dav) : dav_(dav) {}

  // Whether the address leads on.
  bool tryAt(const Url& url) {
    const DavResponse response = dav_.askOne(url, bodies::propfind(startProperties()));
    if (wantsUser(response))
      throw DavFailure(DavFault::password, "The server " + url.place() + " wants a user and a password.");
    if (const auto calendar = calendarIn(response)) add(*calendar);
    found_.homes = urlsIn(response, xml::calDav, "calendar-home-set");
    const auto principals = urlsIn(response, xml::dav, "current-user-principal");
    if (!principals.empty()) found_.principal = principals.front();
    return !principals.empty() || !found_.homes.empty() || !found_.collections.empty();
  }

  Discovery finish() {
    if (found_.homes.empty() && !found_.principal.host.empty()) {
      const auto principal = dav_.askOne(found_.principal, bodies::propfind("<c:calendar-home-set/>"));
      found_.homes = urlsIn(principal, xml::calDav, "calendar-home-set");
    }
    for (const Url& home : found_.homes)
      dav_.ask({"PROPFIND", home, "1", bodies::propfind(collectionProperties)}, [&](DavResponse&& response) {
        if (const auto calendar = calendarIn(response)) add(*calendar);
      });
    return std::move(found_);
  }

 private:
  void add(const CalendarCollection& calendar) {
    const auto& known = found_.collections;
    if (std::none_of(known.begin(), known.end(), [&](const auto& other) { return other.url == calendar.url; }))
      found_.collections.push_back(calendar);
  }

  DavConnection& dav_;
  Discovery found_;
};

std::vector<Url> startsFor(const Url& given) {
  const Url wellKnown = resolveUrl(given, "/.well-known/caldav").value();
  // An address without a path names the server, and the server knows best where its calendars are.
  if (given.path == "/") return {wellKnown, given};
  return {given, wellKnown, resolveUrl(given, "/").value()};
}

}  // namespace

Discovery discover(DavConnection& dav, const Url& given) {
  Search search(dav);
  std::optional<DavFailure> first;
  for (const Url& start : startsFor(given)) {
    try {
      if (search.tryAt(start)) return search.finish();
    } catch (const DavFailure& failure) {
      if (!concernsAddress(failure.fault())) throw;
      if (!first || start == given) first = failure;
    }
  }
  if (first) throw DavFailure(*first);
  throw DavFailure(DavFault::noCalendar, "The server " + given.place() + " tells of no calendars for this user.");
}

}  // namespace tarnel::account
