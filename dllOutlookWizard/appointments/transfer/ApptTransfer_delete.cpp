#include "ApptTransfer.h"
#include "CStringBag.h"
#include "CalendarCopies.h"
#include "Conversions.h"
#include "MarkedRows.h"
#include "OutlookLink.h"
#include "ScheduleRow.h"
#include "SqlText.h"
#include "StandardHandler.h"
#include "clsUtilCMD.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

// A paragraph of a question; empty for no rows.
std::string paragraph(int count, const std::string& forOne, const std::string& kind, const std::string& forMany) {
  if (count == 0) return {};
  return (count == 1 ? forOne : kind + "s selected: " + std::to_string(count) + forMany) + "\r\n\r\n";
}

std::string outlookSideQuestion(const MarkedRows& marked) {
  return paragraph(marked.outlookCount,
                   "One Outlook Appointment selected. Unless it is a recurring Appointment, it will be deleted in "
                   "Outlook and therefore will not appear in Tarnel.",
                   "Outlook Appointment",
                   " . These will be deleted (unless they are recurring Appointments) in Outlook and therefore will "
                   "not appear in Tarnel.") +
         paragraph(marked.taskCount,
                   "One Task Appointment selected. It will be deleted from Outlook but not from Tarnel.",
                   "Task Appointment", " . They will be deleted from Outlook but not from Tarnel.") +
         "Proceed?";
}

std::string tarnelSideQuestion(const MarkedRows& marked) {
  const std::string outlookPart =
      "Outlook Appointments selected: " + std::to_string(marked.outlookCount) +
      " . These should be deleted in the Outlook half of the Wizard, or if reoccuring, in Outlook itself.\r\n\r\n";
  return (marked.outlookCount > 0 ? outlookPart : std::string()) +
         paragraph(marked.taskCount,
                   "One Task Appointment selected. It will be deleted from Tarnel and Outlook if it exists there.",
                   "Task Appointment", " . They will be deleted from Tarnel and Outlook if they exist there.") +
         "Proceed?";
}

bool isOccurrence(const CStringBag& tag) { return equalsIgnoringCase(tag.ReadItem(apptTag::recurring), "True"); }

std::shared_ptr<outlook::Item> calendarItem(const std::string& entryId) {
  const auto folder = outlookNameSpace().GetDefaultFolder(outlook::DefaultFolder::calendar);
  return outlookNameSpace().GetItemFromID(entryId, folder->StoreID());
}

// Without its link the Task Appointment counts as never copied.
void unlink(ado::Recordset& rows, const std::string& guid) {
  rows.Find("taGUIDID", guid);
  if (rows.atEOF()) return;
  rows.Fields("taOutlookEntryID").setValue(Null{});
  rows.UpdateBatch(ado::Affect::allChapters);
}

void deleteOutlookRow(DaySchedules& schedules, std::int16_t index) {
  ctMDay& schedule = schedules.outlookSide;
  const std::string tagText = schedule.AppTag(index);
  const CStringBag tag(tagText);
  if (isOccurrence(tag)) return;
  const std::string entryId = tag.ReadItem(outlookLink::entryId);
  const bool isCopyOfOurs = schedule.AppOwnerImage(index) == apptPicture::tarnel;
  schedule.setAppMarkImage(index, apptPicture::none);
  letEventsRun();

  manageOutlookRef();  // out of reach shows at the next step
  const auto item = calendarItem(entryId);
  if (isCopyOfOurs) {
    if (!schedules.theTaskApptRows) failObjectNotSet();
    unlink(*schedules.theTaskApptRows, tag.ReadItem(outlookLink::tarnelGuid));
  }
  if (!item) return;
  item->Delete();
  removeRow(schedule, index, tagText);
}

// The copy of a row at the day's edge, which no schedule of the day shows.
void deleteHiddenCopyOf(const std::string& guid, DaySchedules& schedules) {
  const auto rows = schedules.theTaskApptRows;
  if (!rows) return;
  rows->Find("taGUIDID", guid);
  if (rows->atEOF()) return;
  const std::string link = textOrEmpty(rows->Fields("taOutlookEntryID").Value());
  const Date day = schedules.formDate(), start = toDate(rows->Fields("taStartTime").Value());
  if (link.empty() || !liesAtTheEdge(day, start, toDate(rows->Fields("taEndTime").Value()))) return;
  letEventsRunAttached();
  const auto copy = CalendarCopies(day).find(link, start);
  if (copy && !copy->IsRecurring()) copy->Delete();
}

// The item that a copy of this Task Appointment made, as far as the Outlook side shows it or the row's own times lead
// to it; occurrences are left alone.
void deleteCopyOf(const std::string& guid, DaySchedules& schedules) {
  if (guid.empty()) return;  // a tag without the key reads as empty, too
  ctMDay& outlookSide = schedules.outlookSide;
  for (std::int16_t i = outlookSide.AppCount(); i >= 1; --i) {
    const std::string tagText = outlookSide.AppTag(i);
    const CStringBag tag(tagText);
    if (isOccurrence(tag) || tag.ReadItem(outlookLink::tarnelGuid) != guid) continue;
    letEventsRunAttached();
    if (const auto item = calendarItem(tag.ReadItem(outlookLink::entryId))) {
      item->Delete();
      removeRow(outlookSide, i, tagText);
    }
    return;
  }
  deleteHiddenCopyOf(guid, schedules);
}

void deleteTarnelRow(DaySchedules& schedules, std::int16_t index) {
  ctMDay& schedule = schedules.tarnelSide;
  if (schedule.AppOwnerImage(index) == apptPicture::outlook) schedule.setAppMarkImage(index, apptPicture::none);
  if (schedule.AppOwnerImage(index) != apptPicture::tarnel) return;
  const std::string guid = schedule.AppTag(index);
  deleteCopyOf(guid, schedules);
  deleteAppt(guid);
}

}  // namespace

bool deleteAppt(const std::string& guid) {
  return standardHandler<bool>(modules::frmOutWiz, "deleteAppt", [&](bool& done) {
    clsUtilCMD command;
    command.SetCMDSQL("DELETE from TASKAPPTS WHERE taGUIDID = " + sqlText(guid));
    command.doCMDExec();
    done = true;
  });
}

bool DeleteOutlookAppts(DaySchedules& schedules) {
  return standardHandler<bool>(modules::frmOutWiz, "DeleteOutlookAppts", [&](bool& done) {
    const MarkedRows marked(schedules.outlookSide);
    if (marked.outlookCount == 0 && marked.taskCount == 0) {
      tellUser("No Outlook Appointments or Task Appointments selected to delete.");
      return;
    }
    if (!askUser(outlookSideQuestion(marked))) return;
    forEachMarkedRow(schedules.outlookSide, [&](std::int16_t i) { deleteOutlookRow(schedules, i); });
    closeOutlook();
    schedules.refreshDay();
    done = true;
  });
}

bool DeleteTarnelAppts(DaySchedules& schedules) {
  return standardHandler<bool>(modules::frmOutWiz, "DeleteTarnelAppts", [&](bool& done) {
    const MarkedRows marked(schedules.tarnelSide);
    if (marked.taskCount == 0) {
      tellUser(
          "No Tarnel Task Appointments selected to delete. (Delete Outlook Appointments in the Outlook half of the "
          "Wizard, or if reoccuring, in Outlook itself.)");
      return;
    }
    if (!askUser(tarnelSideQuestion(marked))) return;
    manageOutlookRef();  // out of reach shows at the first row that has a copy
    forEachMarkedRow(schedules.tarnelSide, [&](std::int16_t i) { deleteTarnelRow(schedules, i); });
    closeOutlook();
    schedules.refreshDay();
    done = true;
  });
}

}  // namespace tarnel
