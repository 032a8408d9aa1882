#include "StoredSettings.h"

#include <algorithm>
#include <string_view>

#include "Conversions.h"
#include "Explained.h"
#include "Failure.h"
#include "Platform.h"
#include "Records.h"
#include "SettingsNames.h"
#include "StandardHandler.h"
#include "clsSettings.h"
#include "clsVLProjectsList.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

using Rows = std::shared_ptr<ado::Recordset>;

// The rows of a section, of the one user there is, in their display order.
Rows openSettingsSection(std::string_view section) {
  clsSettings settings;
  settings.SetSQL("SELECT * from Settings WHERE SetUser='1' and SetSettingSection = '" + std::string(section) +
                  "' ORDER BY setSettingDisplayOrd");
  Rows rows;
  settings.GetData(rows);
  if (!rows) failObjectNotSet();
  return rows;
}

// Converts a value of the settings; a failure names the setting.
template <class Convert>
auto settingAs(const std::string& name, const Variant& value, Convert convert) {
  const std::string held = value.isNull() ? "Null" : "\"" + textOrEmpty(value) + "\"";
  return explained("the setting " + name + " holds " + held, [&] { return convert(value); });
}

std::string nameOf(ado::Recordset& row) { return textOrEmpty(row.Fields("SetSettingName").Value()); }

const Variant& valueOrDefault(ado::Recordset& row) {
  const Variant& value = row.Fields("SetSettingValue").Value();
  return textOrEmpty(value).empty() ? row.Fields("SetDefault").Value() : value;
}

// The n-th row into slot n. Failure 9 for a row more than there are slots.
template <class Slots, class Convert>
void readSlots(ado::Recordset& rows, Slots& slots, Convert convert) {
  for (std::size_t slot = 0; !rows.atEOF(); rows.MoveNext(), ++slot) {
    if (slot == slots.size()) failSubscript();
    slots[slot] = settingAs(nameOf(rows), valueOrDefault(rows), convert);
  }
}

constexpr std::array<const char*, dateFormat::count> dateFormatNames{
    "Month1",     "Month2",    "Month3",        "Month4",      "Month5",      "Month6",       "Month7",
    "Month8",     "Month9",    "Month10",       "Month11",     "Month12",     "Day1",         "Day2",
    "Day3",       "Day4",      "Day5",          "Day6",        "Day7",        "DayLetters",   "WeekStartDay",
    "DDFormat",   "DDMonth",   "DDSep",         "D5Format",    "D5Start",     "D5End",        "D5Prime",
    "D5NonPrime", "WMFormat",  "WMHeading",     "WMDate",      "CalWeekends", "CalDaysColor", "CalWeekendColor",
    "HoursInDay", "ApptColor", "ApptDoneColor", "ApptOutlook", "HoursColor",  "asSkipped",    "asFull",
    "asPart",     "asNot"};

struct LayoutRow {
  const char* name = "";
  const char* comment = "";
  Variant value;
};

const std::array<LayoutRow, meSize::count>& newLayout() {
  static const std::array<LayoutRow, meSize::count> rows{{{"meLeft", "Left", 3705},
                                                          {"meTop", "Top", 1000},
                                                          {"meWidth", "Width", 8400},
                                                          {"meHeight", "Height", 5805},
                                                          {"meTaskSplit", "meTaskSplit", 0.5},
                                                          {"meApptSplit", "meApptSplit", 0.5}}};
  return rows;
}

void addLayoutRows(ado::Recordset& rows, FormState& form) {
  for (std::size_t slot = 0; slot < meSize::count; ++slot) {
    const LayoutRow& row = newLayout()[slot];
    form.meSizes[slot] = toSingle(row.value);
    rows.AddNew();
    rows.Fields("SetSettingSection").setValue(settingsSection::layout);
    rows.Fields("SetUser").setValue(1);
    rows.Fields("SetSettingName").setValue(row.name);
    rows.Fields("SetSettingValue").setValue(row.value);
    rows.Fields("SetDefault").setValue(row.value);
    rows.Fields("setSettingDisplayOrd").setValue(static_cast<std::int32_t>(slot));
    rows.Fields("setSettingComment").setValue(row.comment);
    rows.Update();
    rows.UpdateBatch();
  }
}

void saveLayout(const FormState& form) {
  const Rows rows = openSettingsSection(settingsSection::layout);
  for (std::size_t slot = 0; !rows->atEOF(); rows->MoveNext(), ++slot) {
    if (slot == meSize::count) failSubscript();
    rows->Fields("SetSettingValue").setValue(form.meSizes[slot]);
    rows->Update();
  }
  rows->UpdateBatch(ado::Affect::all);
  closeIfOpen(*rows);
}

void saveModes() {
  const Rows rows = openSettingsSection(settingsSection::integration);
  const auto saveWhereNamed = [&](const char* name, std::int32_t mode) {
    if (textOrEmpty(rows->Fields("SetSettingName").Value()) != name) return;
    rows->Fields("SetSettingValue").setValue(mode);
    rows->Update();
  };
  for (; !rows->atEOF(); rows->MoveNext()) {
    saveWhereNamed(integrationSetting::taskMode, session().OutTaskSetting);
    saveWhereNamed(integrationSetting::apptMode, session().OutApptSetting);
  }
  rows->UpdateBatch(ado::Affect::allChapters);
  closeIfOpen(*rows);
}

// A working day that is no part of a day would leave the schedules without rows.
void readWorkingDay(SessionState& state) {
  constexpr std::int32_t defaultStart = 480, defaultEnd = 1020, lastMinute = 1439;
  state.theWorkDayStart = settingAs("D5Start", state.theDateFormats[dateFormat::dayStart], toLong);
  state.theWorkDayEnd = settingAs("D5End", state.theDateFormats[dateFormat::dayEnd], toLong);
  if (state.theWorkDayStart >= 0 && state.theWorkDayStart < state.theWorkDayEnd && state.theWorkDayEnd <= lastMinute)
    return;
  state.theWorkDayStart = defaultStart;
  state.theWorkDayEnd = defaultEnd;
  tellUser("The working day in the settings can't be shown: it goes from minute " +
           state.theDateFormats[dateFormat::dayStart] + " (D5Start) to minute " +
           state.theDateFormats[dateFormat::dayEnd] +
           " (D5End), and a day has the minutes 0 to 1439. The schedules show 8:00 to 17:00 instead.");
}

}  // namespace

void readLevelNamesAndPoints() {
  readSlots(*openSettingsSection(settingsSection::importanceLevel), session().theImportanceNames, toText);
  readSlots(*openSettingsSection(settingsSection::points), session().thePointsTable, toLong);
  readSlots(*openSettingsSection(settingsSection::difficulty), session().theDifficultyNames, toText);
}

void readLayout(FormState& form) {
  const Rows rows = openSettingsSection(settingsSection::layout);
  if (rows->atEOF())
    addLayoutRows(*rows, form);
  else
    readSlots(*rows, form.meSizes, toSingle);
}

void readDateFormats() {
  SessionState& state = session();
  const Rows rows = openSettingsSection(settingsSection::dateFormats);
  for (; !rows->atEOF(); rows->MoveNext()) {
    const std::string name = nameOf(*rows);
    const auto* const slot = std::find(dateFormatNames.begin(), dateFormatNames.end(), name);
    if (slot == dateFormatNames.end()) continue;
    state.theDateFormats[static_cast<std::size_t>(slot - dateFormatNames.begin())] =
        settingAs(name, rows->Fields("SetSettingValue").Value(), toText);
  }
  readWorkingDay(state);
  state.theOutlookApptColor = settingAs("ApptOutlook", state.theDateFormats[dateFormat::outlookColor], toLong);
}

void readIntegration() {
  SessionState& state = session();
  const Rows rows = openSettingsSection(settingsSection::integration);
  for (; !rows->atEOF(); rows->MoveNext()) {
    const std::string name = nameOf(*rows);
    const Variant& value = rows->Fields("SetSettingValue").Value();
    if (name == integrationSetting::project) state.theOutlookProjectKey = textOrEmpty(value);
    if (name == integrationSetting::taskMode) state.OutTaskSetting = settingAs(name, value, toLong);
    if (name == integrationSetting::apptMode) state.OutApptSetting = settingAs(name, value, toLong);
  }
}

void readProjects() {
  SessionState& state = session();
  clsVLProjectsList projects;
  projects.SetSQL("SELECT prjGUIDID, prjProject from PROJECTS ORDER BY prjProject");
  Rows rows;
  projects.GetData(rows);
  if (!rows) failObjectNotSet();
  if (rows->atEOF()) return;

  state.theProjectKeys.clear();
  state.theProjectNames.clear();
  for (; !rows->atEOF(); rows->MoveNext()) {
    state.theProjectKeys.push_back(toText(rows->Fields("prjGUIDID").Value()));
    state.theProjectNames.push_back(toText(rows->Fields("prjProject").Value()));
    if (state.theProjectKeys.back() == state.theOutlookProjectKey)
      state.theOutlookProjectName = state.theProjectNames.back();
  }
}

void readProfile() {
  const Rows rows = openSettingsSection(settingsSection::profile);
  if (rows->RecordCount() == 1) session().theOutlookProfile = textOrEmpty(rows->Fields("SetSettingValue").Value());
  if (rows->RecordCount() == 0) session().theOutlookProfile = "NONE";
  closeIfOpen(*rows);
}

void readOutlookProject() {
  const auto database = ado::connect(platform().database, session().theszConnect);
  const ado::Result project = database->query(
      std::string("SELECT prjGUIDID, prjProject FROM PROJECTS WHERE prjGUIDID IN (SELECT SetSettingValue FROM Settings "
                  "WHERE SetUser='1' AND SetSettingSection='") +
      settingsSection::integration + "' AND SetSettingName='" + integrationSetting::project + "')");
  if (project.rows.empty()) return;
  session().theOutlookProjectKey = textOrEmpty(project.rows.value(0, 0));
  session().theOutlookProjectName = textOrEmpty(project.rows.value(0, 1));
}

bool SaveSettings(const FormState& form) {
  return standardHandler<bool>(modules::frmOutWiz, "SaveSettings", [&](bool& saved) {
    saveLayout(form);
    saveModes();
    saved = true;
  });
}

}  // namespace tarnel
