#pragma once

#include <optional>
#include <string>

#include "RowTimes.h"
#include "ctMDay.h"

namespace tarnel {

// Numbers of the schedules' pictures. The owner's picture tells whose a row is, the check is its mark.
namespace apptPicture {
inline constexpr std::int16_t none = 0;
inline constexpr std::int16_t outlook = 1;
inline constexpr std::int16_t tarnel = 2;
inline constexpr std::int16_t check = 3;
}  // namespace apptPicture

namespace apptState {
inline constexpr std::int32_t added = 0;
inline constexpr std::int32_t unmarked = 1;
inline constexpr std::int32_t marked = 99;
}  // namespace apptState

// Names of the entries of a tag that are read again, besides those of outlookLink. A tag is a CStringBag on all rows
// but Task Appointments, whose tag is their taGUIDID alone.
namespace apptTag {
inline constexpr const char* recurring = "Tag9";  // "True" on an occurrence of a series
}  // namespace apptTag

// The Location of an item that a copy made.
inline constexpr const char* tarnelLocation = "Tarnel";

// What a schedule shows of an appointment.
struct ScheduleRow {
  RowTimes times;
  std::string text;
  std::string key;
  std::string tag;
  std::int16_t ownerImage = apptPicture::none;
  std::optional<Color> color;  // none: the schedule's own
  bool allDay = false;
};

// Appends the row, without a mark; its index.
std::int16_t addRow(ctMDay& schedule, const ScheduleRow& row);
bool isMarked(const ctMDay& schedule, std::int16_t index);
// Tells the user that so many appointments of the day found no room in a schedule; nothing for none.
void tellRowsLeftOut(std::int32_t count);

// The setting ApptColor. Failure 13 when it is no number, 6 when it is none of 32 bits; both name the setting.
Color taskApptColor();

}  // namespace tarnel
