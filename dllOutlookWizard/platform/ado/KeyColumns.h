#pragma once

#include <string_view>

#include "Conversions.h"

namespace tarnel::ado {

// Whether a column of that name holds keys: those of rows, of the rows that they belong to, and link marks, which are
// copies of keys. Keys compare to the letter, in statements and in Find alike, while texts compare without regard to
// case: two keys that differ in case are two rows in databases of other programs.
inline bool holdsKeys(std::string_view column) {
  constexpr std::string_view endings[] = {"GUIDID", "GUID", "Key", "EntityID", "EntryID"};
  for (const std::string_view ending : endings)
    if (column.size() >= ending.size() && equalsIgnoringCase(column.substr(column.size() - ending.size()), ending))
      return true;
  return false;
}

}  // namespace tarnel::ado
