#include "OutlookTasksProject.h"

#include "Conversions.h"
#include "SettingsNames.h"
#include "SqlText.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

std::string whereProjectSetting() {
  return std::string(" WHERE SetUser='1' AND SetSettingSection='") + settingsSection::integration +
         "' AND SetSettingName='" + integrationSetting::project + "'";
}

}  // namespace

void OutlookTasksProject::run(Code code, const std::string& first, const std::string& second) {
  const auto database = ado::connect(database_, session().theszConnect);
  if (code == Code::makeOutlookProject) make(*database);
  if (code == Code::endOutlookProject) end(*database, first, second);
}

// The key of a project that is there, else empty.
std::string OutlookTasksProject::key(ado::Session& database) const {
  const ado::Result stored = database.query("SELECT SetSettingValue FROM Settings" + whereProjectSetting());
  if (stored.rows.empty()) return {};
  const std::string key = textOrEmpty(stored.rows.value(0, 0));
  const ado::Result project = database.query("SELECT prjGUIDID FROM PROJECTS WHERE prjGUIDID=" + sqlText(key));
  return project.rows.empty() ? std::string() : key;
}

void OutlookTasksProject::setKey(ado::Session& database, const std::string& key) const {
  if (database.execute("UPDATE Settings SET SetSettingValue=" + sqlText(key) + whereProjectSetting()) > 0) return;
  database.execute(std::string("INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, "
                               "setSettingDisplayOrd) VALUES ('1', '") +
                   settingsSection::integration + "', '" + integrationSetting::project + "', " + sqlText(key) + ", 0)");
}

void OutlookTasksProject::make(ado::Session& database) const {
  if (!key(database).empty()) return;
  const std::string key = newKey_();
  // The setting first: a failure in between then leaves a key that leads nowhere, and no second project.
  setKey(database, key);
  database.execute("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES (" + sqlText(key) + ", " + sqlText(name) + ")");
}

// Tasks first, so that a failure on the way leaves none without a project.
void OutlookTasksProject::end(ado::Session& database, const std::string& heirKey, const std::string& heirName) const {
  const std::string ending = key(database);
  if (ending.empty() || equalsIgnoringCase(ending, heirKey)) return;
  database.execute("UPDATE TASKS SET tskProjectKey=" + sqlText(heirKey) + ", tskProject=" + sqlText(heirName) +
                   " WHERE tskProjectKey=" + sqlText(ending));
  database.execute("DELETE FROM PROJECTS WHERE prjGUIDID=" + sqlText(ending));
  setKey(database, "");
}

}  // namespace tarnel
