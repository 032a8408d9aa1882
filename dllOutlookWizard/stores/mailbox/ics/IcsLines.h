#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel::mailbox {

// A line of an iCalendar file with its continuations joined, and where in the file it begins, from 1.
struct IcsLine {
  std::string text;
  int number = 0;
};

// A property of a component: NAME;PARAMETER=VALUE:VALUE.
struct IcsProperty {
  std::string name;                               // upper-case
  std::map<std::string, std::string> parameters;  // names upper-case, values without quotes
  std::string value;                              // as written
  IcsLine line;

  std::string parameter(const std::string& key) const;
};

// An event, a to-do, a time zone or another component directly in a calendar.
struct IcsComponent {
  std::string kind;  // upper-case: VEVENT
  int line = 0;
  std::vector<IcsProperty> properties;
  std::vector<IcsLine> lines;   // all of it, BEGIN and END included
  std::vector<IcsLine> nested;  // those of components inside it

  const IcsProperty* find(std::string_view name) const;
};

// What is wrong with a part of a file that can do without it.
struct IcsProblem {
  int line = 0;
  std::string text;
};

struct IcsCalendar {
  bool found = false;  // whether the file has a calendar at all
  std::vector<IcsComponent> components;
  std::vector<IcsProblem> problems;
};

// Takes a file of iCalendar text (RFC 5545) apart; lines may end in CR LF or LF. A component that is not ended, or has
// a line that is no property, is left out and told of.
IcsCalendar readIcsLines(std::string_view text);

// The joined lines of a text, folded ones made whole.
std::vector<IcsLine> unfolded(std::string_view text);

// A text value with its escapes (\n, \, \; \\) resolved, and the other way round.
std::string unescaped(std::string_view value);
std::string escaped(std::string_view text);

bool isUtf8(std::string_view text);

}  // namespace tarnel::mailbox
