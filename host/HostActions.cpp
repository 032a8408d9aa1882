#include "HostActions.h"

#include "Conversions.h"
#include "Platform.h"
#include "SqlText.h"
#include "TaskLists.h"
#include "TaskPicker.h"
#include "TaskTransfer.h"
#include "clsTarnelOutWizard.h"
#include "m_OutlookWizard.h"

namespace tarnel::host {
namespace {

// Lists of the host's own, so that what the user sees in the wizard stays as it is.
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

}  // namespace

HostActions::HostActions(clsTarnelOutWizard& wizard, ado::Provider& database, std::string connection,
                         TarnelUtilities& utilities)
    : database_(database), connection_(std::move(connection)), utilities_(utilities) {
  connections_.push_back(wizard.UpdateOutlookSettings.connect(
      [this](std::int32_t&, std::int32_t&, const std::string& profile) { keepProfile(profile); }));
  connections_.push_back(wizard.ImportFromOutlook.connect([this] { importFromOutlook(); }));
  connections_.push_back(wizard.TurnOnOutlookCurrentTasks.connect([] { copyCurrentTasks(); }));
}

void HostActions::keepProfile(const std::string& profile) const {
  database_.open(connection_)
      ->execute("UPDATE Settings SET SetSettingValue=" + sqlText(profile) +
                " WHERE SetUser='1' AND SetSettingSection='OutlookProfileString'");
}

// The project comes into being behind the wizard's back, which read the projects when it opened.
void HostActions::makeSureOfOutlookProject() const {
  utilities_.run(TarnelUtilities::Code::makeOutlookProject, productTitle, {});
  const auto database = database_.open(connection_);
  const ado::Result project = database->query(
      "SELECT prjGUIDID, prjProject FROM PROJECTS WHERE prjGUIDID IN (SELECT SetSettingValue FROM Settings WHERE "
      "SetUser='1' AND SetSettingSection='OutLookIntegration' AND SetSettingName='OutlookProject')");
  if (project.rows.empty()) return;
  session().theOutlookProjectKey = textOrEmpty(project.rows.value(0, 0));
  session().theOutlookProjectName = textOrEmpty(project.rows.value(0, 1));
}

void HostActions::importFromOutlook() const {
  makeSureOfOutlookProject();
  OwnLists own;
  own.lists.smtSkedPickTasks.Items().Item(taskPickKey).setTag(session().theOutlookProjectKey);
  if (!own.lists.refillTarnelList() || !own.lists.GetOutlookTasks()) return;
  if (OwnLists::check(own.lists.outlookList, rowPicture::outlook)) MakeUpdateOutlookTasksInTarnel(own.lists);
}

void HostActions::copyCurrentTasks() {
  OwnLists own;
  if (own.lists.refillTarnelList() && OwnLists::check(own.lists.tarnelList)) Tarnel2OUTTasks(own.lists);
}

}  // namespace tarnel::host
