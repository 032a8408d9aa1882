#pragma once

#include <string>

namespace tarnel::mailbox {

// A user property of an item.
struct NamedProperty {
  std::string name;
  std::string value;

  friend bool operator==(const NamedProperty&, const NamedProperty&) = default;
};

}  // namespace tarnel::mailbox
