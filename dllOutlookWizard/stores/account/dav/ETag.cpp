#include "ETag.h"

#include <algorithm>

namespace tarnel::account {

ETag::ETag(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  text = text.substr(0, text.find_last_not_of(blanks) + 1);
  weak_ = text.starts_with("W/") || text.starts_with("w/");
  if (weak_) text.remove_prefix(2);
  if (text.size() >= 2 && text.starts_with('"') && text.ends_with('"')) text = text.substr(1, text.size() - 2);
  for (const std::string_view packed : {"--gzip", "-gzip", ";gzip"})
    if (text.ends_with(packed) && text.size() > packed.size()) text.remove_suffix(packed.size());
  value_ = text;
}

std::string ETag::text() const { return "\"" + value_ + "\""; }

}  // namespace tarnel::account
