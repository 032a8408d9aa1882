#include "DavBodies.h"

namespace tarnel::account::bodies {
namespace {

std::string xmlText(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    if (c == '&')
      safe += "&amp;";
    else if (c == '<')
      safe += "&lt;";
    else if (c == '>')
      safe += "&gt;";
    else if (c == '"')
      safe += "&quot;";
    else
      safe += c;
  }
  return safe;
}

std::string document(const std::string& element, const std::string& contents) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<" + element +
         " xmlns:d=\"DAV:\" xmlns:c=\"urn:ietf:params:xml:ns:caldav\" xmlns:s=\"http://calendarserver.org/ns/\">" +
         contents + "</" + element + ">";
}

constexpr const char* itemProperties = "<d:prop><d:getetag/><c:calendar-data/></d:prop>";

}  // namespace

std::string propfind(std::string_view properties) {
  return document("d:propfind", "<d:prop>" + std::string(properties) + "</d:prop>");
}

std::string syncCollection(std::string_view token) {
  return document("d:sync-collection", "<d:sync-token>" + xmlText(token) +
                                           "</d:sync-token><d:sync-level>1</d:sync-level>"
                                           "<d:prop><d:getetag/></d:prop>");
}

std::string calendarQuery(std::string_view component) {
  return document("c:calendar-query", std::string(itemProperties) +
                                          "<c:filter><c:comp-filter name=\"VCALENDAR\"><c:comp-filter name=\"" +
                                          xmlText(component) + "\"/></c:comp-filter></c:filter>");
}

std::string multiget(const std::vector<std::string>& paths) {
  std::string hrefs;
  for (const std::string& path : paths) hrefs += "<d:href>" + xmlText(path) + "</d:href>";
  return document("c:calendar-multiget", itemProperties + hrefs);
}

std::string makeCalendar(std::string_view name, const std::vector<std::string>& components) {
  std::string kinds;
  for (const std::string& component : components) kinds += "<c:comp name=\"" + xmlText(component) + "\"/>";
  return document("c:mkcalendar", "<d:set><d:prop><d:displayname>" + xmlText(name) +
                                      "</d:displayname><c:supported-calendar-component-set>" + kinds +
                                      "</c:supported-calendar-component-set></d:prop></d:set>");
}

}  // namespace tarnel::account::bodies
