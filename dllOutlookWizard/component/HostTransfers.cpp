#include "HostTransfers.h"

#include <set>

#include "ApptTransfer.h"
#include "CStringBag.h"
#include "Conversions.h"
#include "DaySchedules.h"
#include "LinkWalk.h"
#include "Platform.h"
#include "ScheduleRow.h"
#include "StoredSettings.h"
#include "TaskLists.h"
#include "TaskPicker.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"
#include "manageOutlookRef.h"

namespace tarnel {
namespace {

struct OwnLists {
  OwnLists() {
    form.formLoading = true;
    setupSkedPickTasksList(lists.smtSkedPickTasks);
    setupSkedPickTasksSort(lists.smtSkedPickTasks);
    putPickerOnStart(lists.smtSkedPickTasks);
    form.formLoading = false;
  }

  // Checks the rows with that picture, or all; whether there is one.
  static bool check(SmartUI& list, std::string_view picture = {}) {
    bool any = false;
    for (SmartItem& row : list.Items()) {
      row.setChecked(picture.empty() || row.Picture() == picture);
      any |= row.Checked();
    }
    return any;
  }

  FormState form;
  TaskLists lists{form};
};

std::shared_ptr<outlook::Items> outlookTasks() {
  return outlookApplication().Session()->GetDefaultFolder(outlook::DefaultFolder::tasks)->items();
}

bool isDoneInOutlook(const std::string& guid) {
  bool done = false;
  walkLinkedItems(guid, [&done](const LinkedItem& match) {
    done |= match.isLive() && match.item->Status() == outlook::TaskStatus::complete;
  });
  return done;
}

// Nobody looks at each row before such a copy: it must not open again what the user has done in Outlook. Where
// Outlook's folder is empty, no link can be looked up. False, and told, when Outlook is out of reach.
bool leaveOutWhatIsDone(SmartUI& list) {
  if (!attachOrTell()) return false;
  const bool noItems = outlookTasks()->Count() == 0;
  for (SmartItem& row : list.Items()) {
    if (!row.Checked() || CStringBag(row.Tag()).ReadItem(rowTag::outlookId).empty()) continue;
    if (noItems || isDoneInOutlook(row.Key())) row.setChecked(false);
  }
  closeOutlook();
  return true;
}

bool anyChecked(SmartUI& list) {
  for (const SmartItem& row : list.Items())
    if (row.Checked()) return true;
  return false;
}

// The whole days from today on that a Task Appointment starts on.
std::set<double> daysWithAppointments() {
  const auto database = ado::connect(platform().database, session().theszConnect);
  const ado::Result starts = database->query("SELECT taStartTime FROM TASKAPPTS");
  const Date today = platform().clock.now().wholeDay();
  std::set<double> days;
  for (const ado::Row& row : starts.rows) {
    if (!isDate(row[0])) continue;
    if (const Date day = toDate(row[0]).wholeDay(); day >= today && day <= lastDayShown()) days.insert(day.days);
  }
  return days;
}

// What starts at the midnight that ends the day belongs to the next one.
bool markThoseOfTheDay(DaySchedules& schedules, Date day) {
  bool any = false;
  ctMDay& side = schedules.tarnelSide;
  for (std::int16_t i = 1; i <= side.AppCount(); ++i) {
    if (side.appointment(i).firstDay != roundToLong(day.days)) continue;
    side.setAppMarkImage(i, apptPicture::check);
    any = true;
  }
  return any;
}

// The project is made without the wizard's knowledge, which read the projects when it opened.
void makeSureOfOutlookProject() {
  platform().utilities.run(TarnelUtilities::Code::makeOutlookProject, productTitle, {});
  readOutlookProject();
}

}  // namespace

void readSettingsForTransfers() {
  readLevelNamesAndPoints();
  readDateFormats();
  readIntegration();
  readProjects();
  readProfile();
}

bool copyCurrentTasks() {
  OwnLists own;
  SmartUI& list = own.lists.tarnelList;
  if (!own.lists.refillTarnelList()) return false;
  if (!OwnLists::check(list)) return true;
  return leaveOutWhatIsDone(list) && (!anyChecked(list) || Tarnel2OUTTasks(own.lists));
}

bool copyTaskAppointments() {
  for (const double days : daysWithAppointments()) {
    FormState form;
    form.formCurDate = {days};
    DaySchedules schedules(form);
    schedules.showFormDate();
    if (!schedules.GetAppts("CURRENTDATE", false) || !schedules.DisplayTaskAppts()) return false;
    if (markThoseOfTheDay(schedules, form.formCurDate) && !Tarnel2OUTAppts(schedules)) return false;
    schedules.closeRows();
  }
  return true;
}

bool importOutlookTasks() {
  makeSureOfOutlookProject();
  OwnLists own;
  own.lists.smtSkedPickTasks.Items().Item(taskPickKey).setTag(session().theOutlookProjectKey);
  if (!own.lists.refillTarnelList() || !own.lists.GetOutlookTasks()) return false;
  return !OwnLists::check(own.lists.outlookList, rowPicture::outlook) || MakeUpdateOutlookTasksInTarnel(own.lists);
}

}  // namespace tarnel
