#pragma once

#include <string>

#include "TarnelOutWizard.h"

namespace tarnel {

// The argument newProfile of UpdateOutlookSettings: a variant with a text, which handlers may replace.
class ProfileArgument {
 public:
  explicit ProfileArgument(const std::string& profile);
  ~ProfileArgument();
  ProfileArgument(const ProfileArgument&) = delete;
  ProfileArgument& operator=(const ProfileArgument&) = delete;

  TarnelVariant& variant() { return variant_; }
  // What is there now; nothing counts as the empty text. Failure 13 when it is no text.
  std::string text() const;

 private:
  TarnelVariant variant_{};
};

}  // namespace tarnel
