#pragma once

#include <string>
#include <vector>

#include "Contents.h"

namespace tarnel::account {

enum class Side { here, there };

// A field that both sides have changed, each in its own way.
struct FieldConflict {
  std::string part;   // as ContentsPart::key has it
  std::string field;  // as fieldOf has it; empty when one side has removed the part that the other has changed
};

struct Merged {
  std::string text;           // the server's text with what was changed here
  bool changesThere = false;  // it says something else than the server's
  bool changesHere = false;   // it says something else than ours
  // Where one side's value shows and the other's is in that side's contents alone, which have to be kept.
  std::vector<FieldConflict> conflicts;
};

// Joins what was changed here and there since both agreed on `base`, part by part and field by field. Different fields
// join without a word. Of a body that both have changed both texts are kept, the server's first; of any other field,
// that of the `later` side shows. A part that one side has removed and the other has changed stays. What the server
// keeps of an item and we know nothing of is kept. `stamp` dates the change: UTC, 20260101T120000Z.
//
// Without `base` (an item that both sides have and that they never agreed on) all that differs is a conflict.
Merged merge(const Contents& base, const Contents& here, const Contents& there, Side later, const std::string& stamp);

}  // namespace tarnel::account
