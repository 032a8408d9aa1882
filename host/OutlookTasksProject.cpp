#include "OutlookTasksProject.h"

#include "Conversions.h"
#include "SqlText.h"

namespace tarnel::host {
namespace {

constexpr const char* setting =
    " WHERE SetUser='1' AND SetSettingSection='OutLookIntegration' AND SetSettingName='OutlookProject'";

}  // namespace

void OutlookTasksProject::run(Code code, const std::string& first, const std::string& second) {
  const auto session = database_.open(connection_);
  if (code == Code::makeOutlookProject) make(*session);
  if (code == Code::endOutlookProject) end(*session, first, second);
}

// The key of a project that is there, else empty.
std::string OutlookTasksProject::key(ado::Session& session) const {
  const ado::Result stored = session.query(std::string("SELECT SetSettingValue FROM Settings") + setting);
  if (stored.rows.empty()) return {};
  const std::string key = textOrEmpty(stored.rows.value(0, 0));
  const ado::Result project = session.query("SELECT prjGUIDID FROM PROJECTS WHERE prjGUIDID=" + sqlText(key));
  return project.rows.empty() ? std::string() : key;
}

void OutlookTasksProject::setKey(ado::Session& session, const std::string& key) const {
  if (session.execute("UPDATE Settings SET SetSettingValue=" + sqlText(key) + setting) > 0) return;
  session.execute(
      "INSERT INTO Settings (SetUser, SetSettingSection, SetSettingName, SetSettingValue, setSettingDisplayOrd) VALUES "
      "('1', 'OutLookIntegration', 'OutlookProject', " +
      sqlText(key) + ", 0)");
}

void OutlookTasksProject::make(ado::Session& session) const {
  if (!key(session).empty()) return;
  const std::string key = newKey_();
  // The setting first: a failure in between then leaves a key that leads nowhere, and no second project.
  setKey(session, key);
  session.execute("INSERT INTO PROJECTS (prjGUIDID, prjProject) VALUES (" + sqlText(key) + ", " + sqlText(name) + ")");
}

// Tasks first, so that a failure on the way leaves none without a project.
void OutlookTasksProject::end(ado::Session& session, const std::string& heirKey, const std::string& heirName) const {
  const std::string ending = key(session);
  if (ending.empty() || equalsIgnoringCase(ending, heirKey)) return;
  session.execute("UPDATE TASKS SET tskProjectKey=" + sqlText(heirKey) + ", tskProject=" + sqlText(heirName) +
                  " WHERE tskProjectKey=" + sqlText(ending));
  session.execute("DELETE FROM PROJECTS WHERE prjGUIDID=" + sqlText(ending));
  setKey(session, "");
}

}  // namespace tarnel::host
