#pragma once

#include <string>
#include <string_view>

namespace tarnel {

// What a page has at its foot.
struct FooterParts {
  bool rule = false;  // a line across the page above it
  std::string left;
  std::string right;

  friend bool operator==(const FooterParts&, const FooterParts&) = default;
};

// Reads a footer template for one page. Its marks: "{line}" a rule, "{Left}" and "{Right}" where what follows goes,
// "{PageNum}" the page's number, "{newline}" parts it from the text above and is passed over. Text before the first of
// "{Left}" and "{Right}" goes to the left.
FooterParts footerParts(std::string_view footerTemplate, int pageNumber);

}  // namespace tarnel
