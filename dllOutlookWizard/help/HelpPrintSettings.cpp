#include "HelpPrintSettings.h"

#include "Conversions.h"
#include "Explained.h"

namespace tarnel {
namespace {

// The value of a key as the number that `convert` makes of it.
template <class Convert>
auto numberOf(const CStringBag& bag, const std::string& key, Convert convert) {
  const std::string value = bag.ReadItem(key);
  return explained("the print setting " + key + " is \"" + value + "\", which is no number that can be used",
                   [&] { return convert(value); });
}

}  // namespace

void HelpPrintSettings::read(const CStringBag& bag) {
  const auto number = [&bag](const char* key) { return numberOf(bag, key, toLong); };
  const auto centimetres = [&bag](const char* key) { return numberOf(bag, key, toSingle); };
  // What a help print makes no use of is read all the same: a settings text with a fault in it shall not pass.
  bag.ReadItem("PRINTER");
  if (!bag.ReadItem("COPIES").empty()) number("COPIES");
  bag.ReadItem("PAPER");
  TOP = centimetres("TOP");
  BOTTOM = centimetres("BOTTOM");
  RIGHT = centimetres("RIGHT");
  LEFT = centimetres("LEFT");
  number("HCOLOR");
  bag.ReadItem("HFONT");
  number("HSIZE");
  bag.ReadItem("HEADING");
  FCOLOR = number("FCOLOR");
  FFONT = bag.ReadItem("FFONT");
  FSIZE = number("FSIZE");
  FLEFT = bag.ReadItem("FLEFT");
  FRIGHT = bag.ReadItem("FRIGHT");
}

std::string footerText(const std::string& code, const Locale& locale, Date now) {
  if (code == "--Short Date--") return locale.shortDate(now);
  if (code == "--Long Date--") return locale.longDate(now);
  if (code == "--Date Time--") return locale.shortDate(now) + " " + locale.shortTime(now);
  if (code == "--Long Date and Time--") return locale.longDate(now) + " " + locale.longTime(now);
  if (code == "Page Number" || code == "<#>") return "{PageNum}";
  return code;
}

std::string footerTemplate(std::string_view left, std::string_view right) {
  return std::string("{newline}{line}{Left}").append(left).append("{Right}").append(right);
}

}  // namespace tarnel
