#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "FormState.h"
#include "Recordset.h"
#include "clsTaskAppts.h"
#include "ctMDay.h"

namespace tarnel {

// Two schedules of one day, the form's: Task Appointments with what Outlook's calendar holds beside them on the one,
// Outlook's calendar on the other. A mark is the check picture on a row, and nothing else records it.
class DaySchedules {
 public:
  explicit DaySchedules(FormState& form);

  ctMDay tarnelSide;   // ctDaySked(0)
  ctMDay outlookSide;  // ctDaySked(1)

  // The records of the last reading, with the link marks that commands have written since.
  std::shared_ptr<clsTaskAppts> theTaskApptData;
  std::shared_ptr<ado::Recordset> theTaskApptRows;

  std::array<ctMDay*, 2> both() { return {&tarnelSide, &outlookSide}; }
  Date formDate() const { return form_.formCurDate; }
  // Puts both on the form's day; their rows stay.
  void showFormDate();

  // Reads Task Appointments; `mode` and `wholeWeek` as dayQuery takes them. False after a reported failure.
  bool GetAppts(std::string_view mode, bool wholeWeek);
  // Fills the Tarnel side from the records. False after a reported failure, which names the row.
  bool DisplayTaskAppts();
  // Fills the Outlook side with the calendar of the days, and adds what is not a copy of ours to `ctControl`. False,
  // and told, when Outlook is out of reach: nothing is touched then. False without a word when the walk failed: the
  // rows made so far stay.
  bool GetDisplayOutlookAppts(ctMDay& ctControl, Date dStart, Date dEnd);
  // All three for the form's day, whatever one of them reports. All marks go.
  void refreshDay();
  // Closes the records if they are open, and lets go of them.
  void closeRows();

 private:
  void ctDaySked_AppPreSelect(int index, std::int16_t appIndex);
  void ctDaySked_AppSelect(int index, std::int16_t appIndex);

  FormState& form_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel
