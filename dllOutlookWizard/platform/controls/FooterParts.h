#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// What stands at the foot of a page.
struct FooterParts {
  bool rule = false;  // a line across the page above it
  std::string left;
  std::string right;

  friend bool operator==(const FooterParts&, const FooterParts&) = default;
};

// Reads a footer template for one page. Its marks: "{line}" a rule, "{Left}" and "{Right}" where what follows stands,
// "{PageNum}" the page's number, "{newline}" parts it from the text above and is passed over. Text before the first of
// "{Left}" and "{Right}" stands on the left.
FooterParts footerParts(std::string_view footerTemplate, int pageNumber);

}  // namespace tarnel
