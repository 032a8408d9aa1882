#include "FooterParts.h"

#include <array>

namespace tarnel {

FooterParts footerParts(std::string_view footerTemplate, int pageNumber) {
  constexpr std::array<std::string_view, 5> marks{"{newline}", "{line}", "{Left}", "{Right}", "{PageNum}"};
  FooterParts parts;
  std::string* part = &parts.left;
  while (!footerTemplate.empty()) {
    std::string_view mark;
    for (const std::string_view each : marks)
      if (footerTemplate.starts_with(each)) mark = each;
    if (mark.empty()) {
      *part += footerTemplate.front();
      footerTemplate.remove_prefix(1);
      continue;
    }
    if (mark == "{line}") parts.rule = true;
    if (mark == "{Left}") part = &parts.left;
    if (mark == "{Right}") part = &parts.right;
    if (mark == "{PageNum}") *part += std::to_string(pageNumber);
    footerTemplate.remove_prefix(mark.size());
  }
  return parts;
}

}  // namespace tarnel
