#include "SqlText.h"
#include "TaskDatabaseScript.h"

namespace tarnel::host {
namespace {

struct Setting {
  const char* section;
  const char* name;
  const char* value;
  const char* comment = "";
};

// Rows of one section stand together, in the order in which they are shown and read.
constexpr Setting settings[] = {
    {"Importance Level", "Importance0", "Very low"},
    {"Importance Level", "Importance1", "Low"},
    {"Importance Level", "Importance2", "Medium"},
    {"Importance Level", "Importance3", "High"},
    {"Importance Level", "Importance4", "Very high"},

    {"Points", "Importance0", "5", "Importance very low"},
    {"Points", "Importance1", "10", "Importance low"},
    {"Points", "Importance2", "20", "Importance medium"},
    {"Points", "Importance3", "35", "Importance high"},
    {"Points", "Importance4", "50", "Importance very high"},
    {"Points", "Difficulty0", "2", "Very easy"},
    {"Points", "Difficulty1", "5", "Easy"},
    {"Points", "Difficulty2", "10", "Average"},
    {"Points", "Difficulty3", "15", "Hard"},
    {"Points", "Difficulty4", "25", "Very hard"},
    {"Points", "TimeShort", "5", "At most ten minutes"},
    {"Points", "TimeMedium", "10", "Less than two hours"},
    {"Points", "TimeLong", "20", "Two hours and more"},
    {"Points", "Checklist", "5", "Has a checklist"},
    {"Points", "Schedule", "10", "Has Task Appointments"},

    {"Difficulty", "Difficulty0", "Very easy"},
    {"Difficulty", "Difficulty1", "Easy"},
    {"Difficulty", "Difficulty2", "Average"},
    {"Difficulty", "Difficulty3", "Hard"},
    {"Difficulty", "Difficulty4", "Very hard"},

    {"DateFormats", "Month1", "January"},
    {"DateFormats", "Month2", "February"},
    {"DateFormats", "Month3", "March"},
    {"DateFormats", "Month4", "April"},
    {"DateFormats", "Month5", "May"},
    {"DateFormats", "Month6", "June"},
    {"DateFormats", "Month7", "July"},
    {"DateFormats", "Month8", "August"},
    {"DateFormats", "Month9", "September"},
    {"DateFormats", "Month10", "October"},
    {"DateFormats", "Month11", "November"},
    {"DateFormats", "Month12", "December"},
    {"DateFormats", "Day1", "Sunday"},
    {"DateFormats", "Day2", "Monday"},
    {"DateFormats", "Day3", "Tuesday"},
    {"DateFormats", "Day4", "Wednesday"},
    {"DateFormats", "Day5", "Thursday"},
    {"DateFormats", "Day6", "Friday"},
    {"DateFormats", "Day7", "Saturday"},
    {"DateFormats", "DayLetters", "SMTWTFS"},
    {"DateFormats", "WeekStartDay", "2", "1 is Sunday"},
    {"DateFormats", "DDFormat", "mm/dd/yyyy"},
    {"DateFormats", "DDMonth", "mmmm yyyy"},
    {"DateFormats", "DDSep", "/"},
    {"DateFormats", "D5Format", "dddd, mmmm d"},
    {"DateFormats", "D5Start", "480", "Working day from, minutes from midnight"},
    {"DateFormats", "D5End", "1020", "Working day to, minutes from midnight"},
    {"DateFormats", "D5Prime", "16777215", "Colour of working hours"},
    {"DateFormats", "D5NonPrime", "15921906", "Colour of the hours around them"},
    {"DateFormats", "WMFormat", "ddd d"},
    {"DateFormats", "WMHeading", "mmmm yyyy"},
    {"DateFormats", "WMDate", "mm/dd"},
    {"DateFormats", "CalWeekends", "1", "Weekends are shown"},
    {"DateFormats", "CalDaysColor", "16777215"},
    {"DateFormats", "CalWeekendColor", "15921906"},
    {"DateFormats", "HoursInDay", "8", "Hours of a working day, 24 for whole days"},
    // Colours are numbers with red in the lowest byte; these are light enough for black text.
    {"DateFormats", "ApptColor", "11791615", "Task Appointments: 255, 236, 179"},
    {"DateFormats", "ApptDoneColor", "13888217", "Task Appointments that are over: 217, 234, 211"},
    {"DateFormats", "ApptOutlook", "15983311", "Outlook appointments: 207, 226, 243"},
    {"DateFormats", "HoursColor", "14737632", "Hour lines: 224, 224, 224"},
    {"DateFormats", "asSkipped", "Skipped"},
    {"DateFormats", "asFull", "Worked in full"},
    {"DateFormats", "asPart", "Worked in part"},
    {"DateFormats", "asNot", "Not begun"},

    {"OutLookIntegration", "OutlookProject", "", "Key of the project that holds tasks from Outlook"},
    {"OutLookIntegration", "OutTaskSetting", "2", "Tasks are copied with the Outlook Wizard"},
    {"OutLookIntegration", "OutApptSetting", "2", "Task Appointments are copied with the Outlook Wizard"},

    {"OutlookProfileString", "OutlookProfile", "", "Outlook profile to log on with"},
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
