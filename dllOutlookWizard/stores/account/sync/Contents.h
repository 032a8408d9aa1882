#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "IcsLines.h"

namespace tarnel::account {

// What of an item is changed, compared and merged as one: the name of a property, of a group whose properties make
// sense together only, or of one user property.
namespace field {
inline constexpr std::string_view times = "times";  // when it is: DTSTART, DUE, DTEND, RRULE, EXDATE and their like
inline constexpr std::string_view status =
    "status";  // how far it is: STATUS, PERCENT-COMPLETE, COMPLETED and their like
inline constexpr std::string_view nested = "nested";  // components inside it: alarms
inline constexpr std::string_view body = "DESCRIPTION";
}  // namespace field

// The field that a property belongs to; empty for one that only keeps count of changes, such as DTSTAMP.
std::string fieldOf(const mailbox::IcsProperty& property);

// A component of an item: its to-do or event, or an exception of a series.
class ContentsPart {
 public:
  explicit ContentsPart(mailbox::IcsComponent component);

  // What tells it from the item's other parts: its kind, and of an exception which occurrence it replaces.
  std::string key() const;
  const mailbox::IcsComponent& component() const { return component_; }

  // The values of a field, free of what servers change without meaning to: the order, escapes, lists cut into lines,
  // values that say nothing. Equal sets mean the same to a user. Empty when the part hasn't the field.
  const std::set<std::string>& values(std::string_view name) const;
  // All fields that it has.
  std::set<std::string> fields() const;
  // The lines of a field as they are in the text.
  std::vector<std::string> lines(std::string_view name) const;

  bool operator==(const ContentsPart& other) const { return values_ == other.values_; }

 private:
  mailbox::IcsComponent component_;
  std::map<std::string, std::set<std::string>, std::less<>> values_;
};

// An item of a calendar server: iCalendar text, and what it says.
class Contents {
 public:
  // Of no text: an item without parts.
  Contents() = default;
  // None for a text that is no calendar, or has a part that can't be read: such an item is passed over as it is.
  static std::optional<Contents> read(std::string_view text);

  const std::map<std::string, ContentsPart>& parts() const { return parts_; }
  // Null when there is none.
  const ContentsPart* part(const std::string& key) const;
  // The VTIMEZONEs, by TZID.
  const std::map<std::string, mailbox::IcsComponent>& zones() const { return zones_; }
  // The text, a line each, continuations joined.
  const std::vector<mailbox::IcsLine>& lines() const { return lines_; }
  // Of the first part; empty when there is none.
  std::string uid() const;
  // When it was last changed, as the text has it (UTC, so that texts compare); empty when it doesn't say.
  std::string modified() const;

  // Whether both say the same to a user. Definitions of time zones and counts of changes don't matter.
  bool sameAs(const Contents& other) const { return parts_ == other.parts_; }

 private:
  std::map<std::string, ContentsPart> parts_;
  std::map<std::string, mailbox::IcsComponent> zones_;
  std::vector<mailbox::IcsLine> lines_;
};

}  // namespace tarnel::account
