#pragma once

#include <locale.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "Date.h"

namespace tarnel {

// How the user's system writes dates and times. Formats are strftime's, with four-digit years.
class Locale {
 public:
  struct Formats {
    std::string shortDate = "%m/%d/%Y";
    std::string longDate = "%A, %B %d, %Y";
    std::string shortTime = "%H:%M";
    std::string longTime = "%H:%M:%S";
  };

  // Month first, 24 hours, English names.
  Locale() : Locale(Formats{}) {}
  explicit Locale(Formats formats);
  // What the environment's LC_TIME gives, a two-digit year widened to four digits.
  static Locale ofSystem();

  std::string shortDate(Date date) const { return text(date, formats_.shortDate); }
  std::string longDate(Date date) const { return text(date, formats_.longDate); }
  std::string shortTime(Date date) const { return text(date, formats_.shortTime); }
  std::string longTime(Date date) const { return text(date, formats_.longTime); }
  // Short date, one blank, long time; the date alone at midnight.
  std::string generalDate(Date date) const;

  // Reads what shortDate writes, optionally with a time after it: "HH:MM[:SS]", optionally with " AM" or " PM".
  // None for any other text.
  std::optional<Date> parseDate(std::string_view text) const;

 private:
  std::string text(Date date, const std::string& format) const;

  Formats formats_;
  std::shared_ptr<std::remove_pointer_t<locale_t>> names_;  // of days and months
};

}  // namespace tarnel
