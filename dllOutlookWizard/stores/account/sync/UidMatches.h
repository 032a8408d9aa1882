#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tarnel::account {

// An item on the server, by its address and its iCalendar UID.
struct UidSighting {
  std::string href;
  std::string uid;
  std::string modified;  // as Contents::modified has it
};

// One UID under several addresses.
struct UidDouble {
  std::string uid;
  std::string shown;                // the address of the one that was changed last
  std::vector<std::string> others;  // left as they are, and told to the user
};

struct UidMatches {
  std::vector<std::pair<std::string, std::string>> renamed;  // a known address that is gone, and the new one
  std::vector<UidDouble> doubles;
};

// What the UIDs tell that addresses don't. `known` are the items that we know, `listed` all that a complete listing
// names; those without a UID match nothing.
UidMatches matchByUid(const std::vector<UidSighting>& known, const std::vector<UidSighting>& listed);

}  // namespace tarnel::account
