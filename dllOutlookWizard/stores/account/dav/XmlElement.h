#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnel::account {

// Namespaces of what calendar servers say, whatever prefixes they give them.
namespace xml {
inline constexpr std::string_view dav = "DAV:";
inline constexpr std::string_view calDav = "urn:ietf:params:xml:ns:caldav";
inline constexpr std::string_view calendarServer = "http://calendarserver.org/ns/";
}  // namespace xml

// An element with all that is in it.
struct XmlElement {
  std::string space;  // the namespace; empty for none
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;  // those without a namespace
  std::string text;                                             // its own, not that of its children
  std::vector<XmlElement> children;

  bool is(std::string_view inSpace, std::string_view withName) const { return name == withName && space == inSpace; }
  // The first child of that name; null when there is none.
  const XmlElement* child(std::string_view inSpace, std::string_view withName) const;
  // The text without blanks around it.
  std::string_view trimmed() const;
  // Empty when there is none.
  std::string attribute(std::string_view withName) const;
};

}  // namespace tarnel::account
