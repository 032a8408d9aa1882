#include "Captions.h"

#include "StandardHandler.h"

namespace tarnel {

std::string ZapAmps(const std::string& text) {
  return standardHandler<std::string>(modules::m_OutlookWizard, "ZapAmps", [&](std::string& result) {
    result.reserve(text.size());
    for (const char c : text) result.append(c == '&' ? 2 : 1, c);
  });
}

std::string unzapAmps(std::string_view caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    text += caption[i];
    if (caption.substr(i, 2) == "&&") ++i;
  }
  return text;
}

SmartItem* GetItemSelected(SmartItem& item) {
  return standardHandler<SmartItem*>(modules::m_OutlookWizard, "GetItemSelected", [&](SmartItem*& found) {
    for (SmartItem& entry : item.SubItems()) {
      if (item.Value() != Variant(entry.Caption())) continue;
      found = &entry;
      return;
    }
  });
}

}  // namespace tarnel
