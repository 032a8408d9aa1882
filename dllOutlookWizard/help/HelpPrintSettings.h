#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "CStringBag.h"
#include "Date.h"
#include "Locale.h"

namespace tarnel {

// What a help print takes of the host's print settings. Keeps what it read until it reads again.
struct HelpPrintSettings {
  float TOP = 0;  // centimetres, as are the next
  float BOTTOM = 0;
  float RIGHT = 0;
  float LEFT = 0;
  std::int32_t FCOLOR = 0;
  std::string FFONT;
  std::int32_t FSIZE = 0;  // points
  std::string FLEFT;
  std::string FRIGHT;

  // Reads the keys in the order in which the host writes them. A value that is not the number that it should be fails
  // with 13 (6 out of range), naming key and value; the keys after it then stay as they were.
  void read(const CStringBag& bag);
};

// A footer code's text for this moment; any other text as it is.
std::string footerText(const std::string& code, const Locale& locale, Date now);

// The marks are the editor control's own.
std::string footerTemplate(std::string_view left, std::string_view right);

}  // namespace tarnel
