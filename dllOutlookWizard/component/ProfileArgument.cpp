#include "ProfileArgument.h"

#include "Contained.h"
#include "Failure.h"
#include "Texts.h"

namespace tarnel {

ProfileArgument::ProfileArgument(const std::string& profile) {
  variant_.kind = TARNEL_TEXT;
  variant_.value.text = handedBack(profile);
}

ProfileArgument::~ProfileArgument() {
  if (variant_.kind == TARNEL_TEXT) std::free(variant_.value.text.bytes);
}

std::string ProfileArgument::text() const {
  if (variant_.kind == TARNEL_EMPTY || variant_.kind == TARNEL_NULL) return {};
  try {
    if (variant_.kind == TARNEL_TEXT) return received(&variant_.value.text);
  } catch (const Refusal&) {
    // Told below, with the argument's name.
  }
  throw Failure(failure::typeMismatch,
                "The host's handler of UpdateOutlookSettings put something else than a text into newProfile.");
}

}  // namespace tarnel
