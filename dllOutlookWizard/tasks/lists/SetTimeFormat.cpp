#include "SetTimeFormat.h"

#include <cmath>
#include <cstdint>

#include "Conversions.h"
#include "Explained.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// Lengths in minutes.
struct DayLengths {
  double full;   // weeks are counted in seven of these
  double shown;  // days are counted in these
};

DayLengths dayLengths() {
  const auto& formats = session().theDateFormats;
  const std::string& hours = formats[dateFormat::hoursInDay];
  return explained("the setting HoursInDay holds \"" + hours + "\"", [&]() -> DayLengths {
    const double full = roundToLong(static_cast<double>(toSingle(hours) * 60.0F));
    const std::int32_t wholeHours = toLong(hours);
    if (wholeHours == 0 || wholeHours == 24) return {full, full};
    return {full, static_cast<double>(toLong(formats[dateFormat::dayEnd]) - toLong(formats[dateFormat::dayStart]))};
  });
}

std::int64_t wholePart(double number) { return static_cast<std::int64_t>(std::trunc(number)); }

std::string hoursAndMinutes(double minutes) {
  const std::int64_t hours = wholePart(minutes / 60);
  const auto rest = static_cast<std::int64_t>(std::nearbyint(minutes - static_cast<double>(hours) * 60));
  return std::to_string(hours) + (rest < 10 ? ":0" : ":") + std::to_string(rest);
}

bool isOnce(double minutes, double length) { return static_cast<float>(minutes / length) == 1.0F; }

bool isMultiple(double minutes, double length) { return std::fmod(std::nearbyint(minutes), length) == 0; }

std::string days(double minutes, double length) {
  if (isOnce(minutes, length)) return "1 Day";
  const std::int64_t count = wholePart(minutes / length);
  if (isMultiple(minutes, length)) return std::to_string(count) + " Days";
  return std::to_string(count) + "D " + hoursAndMinutes(minutes - length * static_cast<double>(count));
}

std::string weeks(double minutes, double day) {
  const double week = 7 * day;
  if (isOnce(minutes, week)) return "1 Week";
  const std::int64_t count = wholePart(minutes / week);
  if (isMultiple(minutes, week)) return std::to_string(count) + " Weeks";
  const double behindWeeks = minutes - week * static_cast<double>(count);
  const std::int64_t dayCount = wholePart(behindWeeks / day);
  return std::to_string(count) + "W " + std::to_string(dayCount) + "D " +
         hoursAndMinutes(behindWeeks - day * static_cast<double>(dayCount));
}

}  // namespace

std::string SetTimeFormat(double minutes) {
  return standardHandler<std::string>(modules::m_OutlookWizard, "SetTimeFormat", [&](std::string& text) {
    if (minutes == 0) {
      text = "0:00";
      return;
    }
    const double length = std::abs(minutes);
    const DayLengths day = dayLengths();
    if (day.shown == 0 || day.full == 0) throw Failure(failure::divisionByZero, "Division by zero");
    if (length <= day.shown)
      text = hoursAndMinutes(length);
    else if (length > 7 * day.full)
      text = weeks(length, day.full);
    else
      text = days(length, day.shown);
  });
}

}  // namespace tarnel
