#include "SessionSettings.h"

#include <algorithm>
#include <string_view>

#include "Conversions.h"
#include "Failure.h"
#include "Records.h"
#include "SettingsSection.h"
#include "clsVLProjectsList.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

using Rows = std::shared_ptr<ado::Recordset>;

const Variant& valueOrDefault(ado::Recordset& row) {
  const Variant& value = row.Fields("SetSettingValue").Value();
  return textOrEmpty(value).empty() ? row.Fields("SetDefault").Value() : value;
}

// The n-th row into slot n. Failure 9 for a row more than there are slots.
template <class Slots, class Convert>
void readSlots(ado::Recordset& rows, Slots& slots, Convert convert) {
  for (std::size_t slot = 0; !rows.atEOF(); rows.MoveNext(), ++slot) {
    if (slot == slots.size()) failSubscript();
    slots[slot] = convert(valueOrDefault(rows));
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
  const char* name;
  const char* comment;
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
    rows.Fields("SetSettingSection").setValue("OutWizard");
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

}  // namespace

void readLevelNamesAndPoints() {
  readSlots(*openSettingsSection("Importance Level"), session().theImportanceNames, toText);
  readSlots(*openSettingsSection("Points"), session().thePointsTable, toLong);
  readSlots(*openSettingsSection("Difficulty"), session().theDifficultyNames, toText);
}

void readLayout(FormState& form) {
  const Rows rows = openSettingsSection("OutWizard");
  if (rows->atEOF())
    addLayoutRows(*rows, form);
  else
    readSlots(*rows, form.meSizes, toSingle);
}

void readDateFormats() {
  SessionState& state = session();
  const Rows rows = openSettingsSection("DateFormats");
  for (; !rows->atEOF(); rows->MoveNext()) {
    const std::string name = textOrEmpty(rows->Fields("SetSettingName").Value());
    const auto* const slot = std::find(dateFormatNames.begin(), dateFormatNames.end(), name);
    if (slot == dateFormatNames.end()) continue;
    state.theDateFormats[static_cast<std::size_t>(slot - dateFormatNames.begin())] =
        toText(rows->Fields("SetSettingValue").Value());
  }
  state.theWorkDayStart = toLong(state.theDateFormats[dateFormat::dayStart]);
  state.theWorkDayEnd = toLong(state.theDateFormats[dateFormat::dayEnd]);
  state.theOutlookApptColor = toLong(state.theDateFormats[dateFormat::outlookColor]);
}

void readIntegration() {
  SessionState& state = session();
  const Rows rows = openSettingsSection("OutLookIntegration");
  for (; !rows->atEOF(); rows->MoveNext()) {
    const std::string name = textOrEmpty(rows->Fields("SetSettingName").Value());
    const Variant& value = rows->Fields("SetSettingValue").Value();
    if (name == "OutlookProject") state.theOutlookProjectKey = textOrEmpty(value);
    if (name == "OutTaskSetting") state.OutTaskSetting = toLong(value);
    if (name == "OutApptSetting") state.OutApptSetting = toLong(value);
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
  const Rows rows = openSettingsSection("OutlookProfileString");
  if (rows->RecordCount() == 1) session().theOutlookProfile = textOrEmpty(rows->Fields("SetSettingValue").Value());
  if (rows->RecordCount() == 0) session().theOutlookProfile = "NONE";
  closeIfOpen(*rows);
}

}  // namespace tarnel
