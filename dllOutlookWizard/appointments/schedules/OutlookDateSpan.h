#pragma once

#include <memory>

#include "Date.h"
#include "Folder.h"

namespace tarnel {

// The items that overlap the days from `dStart` to `dEnd`, both included, each occurrence of a series as an item of its
// own. Null, without a word, when `items` is null or Outlook refuses.
std::shared_ptr<outlook::Items> OutlookDateSpan(const std::shared_ptr<outlook::Items>& items, Date dStart, Date dEnd);

}  // namespace tarnel
