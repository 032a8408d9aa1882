#pragma once

#include <string>
#include <utility>

#include "Failure.h"

namespace tarnel {

// What `read` gives. A failure on the way keeps its number and tells `about` as well, after its own words: "Type
// mismatch" alone says nobody what to correct.
template <class Read>
auto explained(const std::string& about, Read&& read) {
  try {
    return std::forward<Read>(read)();
  } catch (const Failure& failure) {
    throw Failure(failure.number(), failure.description() + ": " + about, failure.source());
  }
}

}  // namespace tarnel
