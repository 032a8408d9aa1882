#include "SettingsNames.h"
#include "SqlText.h"
#include "TaskDatabaseScript.h"

namespace tarnel::host {
namespace {

using namespace settingsSection;

struct Setting {
  const char* section = "";
  const char* name = "";
  const char* value = "";
  const char* comment = "";
};

// Rows of one section are together, in the order in which they are shown and read.
constexpr Setting settings[] = {
    {importanceLevel, "Importance0", "Very low"},
    {importanceLevel, "Importance1", "Low"},
    {importanceLevel, "Importance2", "Medium"},
    {importanceLevel, "Importance3", "High"},
    {importanceLevel, "Importance4", "Very high"},

    {points, "Importance0", "5", "Importance very low"},
    {points, "Importance1", "10", "Importance low"},
    {points, "Importance2", "20", "Importance medium"},
    {points, "Importance3", "35", "Importance high"},
    {points, "Importance4", "50", "Importance very high"},
    {points, "Difficulty0", "2", "Very easy"},
    {points, "Difficulty1", "5", "Easy"},
    {points, "Difficulty2", "10", "Average"},
    {points, "Difficulty3", "15", "Hard"},
    {points, "Difficulty4", "25", "Very hard"},
    {points, "TimeShort", "5", "At most ten minutes"},
    {points, "TimeMedium", "10", "Less than two hours"},
    {points, "TimeLong", "20", "Two hours and more"},
    {points, "Checklist", "5", "Has a checklist"},
    {points, "Schedule", "10", "Has Task Appointments"},

    {difficulty, "Difficulty0", "Very easy"},
    {difficulty, "Difficulty1", "Easy"},
    {difficulty, "Difficulty2", "Average"},
    {difficulty, "Difficulty3", "Hard"},
    {difficulty, "Difficulty4", "Very hard"},

    {dateFormats, "Month1", "January"},
    {dateFormats, "Month2", "February"},
    {dateFormats, "Month3", "March"},
    {dateFormats, "Month4", "April"},
    {dateFormats, "Month5", "May"},
    {dateFormats, "Month6", "June"},
    {dateFormats, "Month7", "July"},
    {dateFormats, "Month8", "August"},
    {dateFormats, "Month9", "September"},
    {dateFormats, "Month10", "October"},
    {dateFormats, "Month11", "November"},
    {dateFormats, "Month12", "December"},
    {dateFormats, "Day1", "Sunday"},
    {dateFormats, "Day2", "Monday"},
    {dateFormats, "Day3", "Tuesday"},
    {dateFormats, "Day4", "Wednesday"},
    {dateFormats, "Day5", "Thursday"},
    {dateFormats, "Day6", "Friday"},
    {dateFormats, "Day7", "Saturday"},
    {dateFormats, "DayLetters", "SMTWTFS"},
    {dateFormats, "WeekStartDay", "2", "1 is Sunday"},
    {dateFormats, "DDFormat", "mm/dd/yyyy"},
    {dateFormats, "DDMonth", "mmmm yyyy"},
    {dateFormats, "DDSep", "/"},
    {dateFormats, "D5Format", "dddd, mmmm d"},
    {dateFormats, "D5Start", "480", "Working day from, minutes from midnight"},
    {dateFormats, "D5End", "1020", "Working day to, minutes from midnight"},
    {dateFormats, "D5Prime", "16777215", "Colour of working hours"},
    {dateFormats, "D5NonPrime", "15921906", "Colour of the hours around them"},
    {dateFormats, "WMFormat", "ddd d"},
    {dateFormats, "WMHeading", "mmmm yyyy"},
    {dateFormats, "WMDate", "mm/dd"},
    {dateFormats, "CalWeekends", "1", "Weekends are shown"},
    {dateFormats, "CalDaysColor", "16777215"},
    {dateFormats, "CalWeekendColor", "15921906"},
    {dateFormats, "HoursInDay", "8", "Hours of a working day, 24 for whole days"},
    // Colours are numbers with red in the lowest byte; these are light enough for black text.
    {dateFormats, "ApptColor", "11791615", "Task Appointments: 255, 236, 179"},
    {dateFormats, "ApptDoneColor", "13888217", "Task Appointments that are over: 217, 234, 211"},
    {dateFormats, "ApptOutlook", "15983311", "Outlook appointments: 207, 226, 243"},
    {dateFormats, "HoursColor", "14737632", "Hour lines: 224, 224, 224"},
    {dateFormats, "asSkipped", "Skipped"},
    {dateFormats, "asFull", "Worked in full"},
    {dateFormats, "asPart", "Worked in part"},
    {dateFormats, "asNot", "Not begun"},

    {integration, integrationSetting::project, "", "Key of the project that holds tasks from Outlook"},
    {integration, integrationSetting::taskMode, "2", "Tasks are copied with the Outlook Wizard"},
    {integration, integrationSetting::apptMode, "2", "Task Appointments are copied with the Outlook Wizard"},

    {profile, "OutlookProfile", "", "Outlook profile to log on with"},
};

std::string row(const Setting& setting, int order) {
  const std::string value = sqlText(setting.value);
  return "INSERT INTO Settings VALUES ('1', " + sqlText(setting.section) + ", " + sqlText(setting.name) + ", " + value +
         ", " + value + ", " + std::to_string(order) + ", " + sqlText(setting.comment) + ");\n";
}

}  // namespace

std::string defaultSettingsScript() {
  std::string script;
  std::string_view section;
  int order = 0;
  for (const Setting& setting : settings) {
    order = setting.section == section ? order + 1 : 0;
    section = setting.section;
    script += row(setting, order);
  }
  return script;
}

}  // namespace tarnel::host
