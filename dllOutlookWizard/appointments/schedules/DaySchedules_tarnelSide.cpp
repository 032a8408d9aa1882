#include "Conversions.h"
#include "DayQuery.h"
#include "DaySchedules.h"
#include "Platform.h"
#include "ScheduleRow.h"
#include "StandardHandler.h"

namespace tarnel {
namespace {

// The columns of the rows being shown, looked up once.
struct ApptColumns {
  explicit ApptColumns(ado::Recordset& rows)
      : guid(rows.Fields("taGUIDID")),
        description(rows.Fields("taTaskDesc")),
        start(rows.Fields("taStartTime")),
        end(rows.Fields("taEndTime")) {}

  ado::Field guid, description, start, end;
};

ScheduleRow rowOf(const ApptColumns& appt) {
  ScheduleRow row;
  row.times = rowTimes(toDate(appt.start.Value()), toDate(appt.end.Value()));
  row.text = toText(appt.description.Value());
  row.key = toText(appt.guid.Value());
  row.tag = row.key;
  row.ownerImage = apptPicture::tarnel;
  row.color = taskApptColor();
  return row;
}

// "Invalid use of Null" alone tells nobody which of a day's rows it is.
void addNamingTheRow(const ApptColumns& appt, ctMDay& schedule) {
  try {
    addRow(schedule, rowOf(appt));
  } catch (const Failure& failure) {
    throw Failure(failure.number(), failure.description() + " (Task Appointment " + textOrEmpty(appt.guid.Value()) +
                                        ", start " + textOrEmpty(appt.start.Value()) + ")");
  }
}

}  // namespace

bool DaySchedules::GetAppts(std::string_view mode, bool wholeWeek) {
  return standardHandler<bool>(modules::frmOutWiz, "GetAppts", [&](bool& read) {
    const std::string statement = dayQuery(mode, wholeWeek, form_.formCurDate);
    theTaskApptData = std::make_shared<clsTaskAppts>();
    theTaskApptRows.reset();
    theTaskApptData->SetSQL(statement);
    read = theTaskApptData->GetData(theTaskApptRows);
  });
}

bool DaySchedules::DisplayTaskAppts() {
  return standardHandler<bool>(modules::frmOutWiz, "DisplayTaskAppts", [this](bool& shown) {
    tarnelSide.AppClear();
    if (!theTaskApptRows) failObjectNotSet();
    ado::Recordset& rows = *theTaskApptRows;
    const std::int32_t total = rows.RecordCount();
    if (total > 0) rows.MoveFirst();
    const ApptColumns appt(rows);
    std::int32_t done = 1;
    for (; done <= total && !tarnelSide.isFull(); rows.MoveNext(), ++done) {
      addNamingTheRow(appt, tarnelSide);
      platform().desktop.progress(done, total);
    }
    tellRowsLeftOut(total - done + 1);
    shown = true;
  });
}

}  // namespace tarnel
