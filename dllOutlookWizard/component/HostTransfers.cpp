#include "HostTransfers.h"

#include "Conversions.h"
#include "Platform.h"
#include "TaskLists.h"
#include "TaskPicker.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"

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

// The project comes into being behind the wizard's back, which read the projects when it opened.
void makeSureOfOutlookProject() {
  platform().utilities.run(TarnelUtilities::Code::makeOutlookProject, productTitle, {});
  const auto database = ado::connect(platform().database, session().theszConnect);
  const ado::Result project = database->query(
      "SELECT prjGUIDID, prjProject FROM PROJECTS WHERE prjGUIDID IN (SELECT SetSettingValue FROM Settings WHERE "
      "SetUser='1' AND SetSettingSection='OutLookIntegration' AND SetSettingName='OutlookProject')");
  if (project.rows.empty()) return;
  session().theOutlookProjectKey = textOrEmpty(project.rows.value(0, 0));
  session().theOutlookProjectName = textOrEmpty(project.rows.value(0, 1));
}

}  // namespace

bool copyCurrentTasks() {
  OwnLists own;
  if (!own.lists.refillTarnelList()) return false;
  return !OwnLists::check(own.lists.tarnelList) || Tarnel2OUTTasks(own.lists);
}

bool importOutlookTasks() {
  makeSureOfOutlookProject();
  OwnLists own;
  own.lists.smtSkedPickTasks.Items().Item(taskPickKey).setTag(session().theOutlookProjectKey);
  if (!own.lists.refillTarnelList() || !own.lists.GetOutlookTasks()) return false;
  return !OwnLists::check(own.lists.outlookList, rowPicture::outlook) || MakeUpdateOutlookTasksInTarnel(own.lists);
}

}  // namespace tarnel
