#include "CalendarCollection.h"

#include <algorithm>

#include "DavBodies.h"

namespace tarnel::account {
namespace {

// A server that tells no privileges is taken at its word when a write comes back refused.
bool isWritable(const DavResponse& response) {
  const XmlElement* set = response.property(xml::dav, "current-user-privilege-set");
  if (!set) return true;
  for (const XmlElement& privilege : set->children)
    for (const XmlElement& granted : privilege.children)
      for (const char* writing : {"all", "write", "write-content", "bind"})
        if (granted.is(xml::dav, writing)) return true;
  return false;
}

std::vector<std::string> componentsIn(const DavResponse& response) {
  std::vector<std::string> components;
  if (const XmlElement* set = response.property(xml::calDav, "supported-calendar-component-set"))
    for (const XmlElement& component : set->children)
      if (component.is(xml::calDav, "comp")) components.push_back(component.attribute("name"));
  return components;
}

// In DAV:report, as it should be, or without it, as one server has it.
bool reportsChanges(const DavResponse& response) {
  const XmlElement* set = response.property(xml::dav, "supported-report-set");
  return set && std::any_of(set->children.begin(), set->children.end(), [](const XmlElement& supported) {
           const XmlElement* report = supported.child(xml::dav, "report");
           return (report ? report : &supported)->child(xml::dav, "sync-collection");
         });
}

}  // namespace

const char* const collectionProperties =
    "<d:resourcetype/><d:displayname/><c:supported-calendar-component-set/><d:current-user-privilege-set/>"
    "<d:supported-report-set/><s:getctag/><d:sync-token/><d:owner/><d:creationdate/>";

bool CalendarCollection::takes(std::string_view component) const {
  return components.empty() || std::find(components.begin(), components.end(), component) != components.end();
}

std::optional<CalendarCollection> calendarIn(const DavResponse& response) {
  const XmlElement* type = response.property(xml::dav, "resourcetype");
  if (!type || !type->child(xml::calDav, "calendar")) return {};
  CalendarCollection collection;
  collection.url = response.url;
  if (!collection.url.path.ends_with('/')) collection.url.path += '/';
  collection.name = response.text(xml::dav, "displayname");
  collection.components = componentsIn(response);
  collection.writable = isWritable(response);
  collection.syncs = reportsChanges(response);
  collection.ctag = response.text(xml::calendarServer, "getctag");
  collection.syncToken = response.text(xml::dav, "sync-token");
  if (const XmlElement* owner = response.property(xml::dav, "owner"))
    if (const XmlElement* href = owner->child(xml::dav, "href"))
      if (const auto url = resolveUrl(response.url, href->trimmed())) collection.owner = url->path;
  collection.created = response.text(xml::dav, "creationdate");
  return collection;
}

std::optional<CalendarCollection> readCollection(DavConnection& dav, const Url& url) {
  return calendarIn(dav.askOne(url, bodies::propfind(collectionProperties)));
}

}  // namespace tarnel::account
