#include "HelpTopics.h"

#include <algorithm>
#include <array>

namespace tarnel {
namespace {

constexpr HelpTopic topic(std::int32_t number, const char* file, const char* title) {
  return {number, number, file, title};
}

constexpr std::array topics{
    HelpTopic{0, 7, "POP-MetricsTarnel.htm", "Tarnel: Tarnel Metrics"},
    topic(8, "POP-KEYWORDS.htm", "Tarnel: Keywords"),
    topic(9, "POP-TASKCAT.htm", "Tarnel: Task Catalog"),
    topic(10, "POP-TarnelIMPORT.htm", "Tarnel: Import From Tarnel-XL"),
    topic(23, "POP-XLExport.htm", "Tarnel: Export to Excel"),
    topic(50, "AutoSchedule.htm", "Tarnel: Automatic Scheduling"),
    topic(51, "ManualSchedule.htm", "Tarnel: Manual Scheduling"),
    topic(70, "TAB-CHECKLISTS.htm", "Tarnel: Checklists"),
    topic(71, "CHECKLISTS-IMPORT.htm", "Tarnel: Checklists"),
    topic(72, "CHECKLISTS-EXPORT.htm", "Tarnel: Checklists"),
    topic(99, "POP-HELP.htm", "Tarnel: Task Catalog"),
    topic(100, "POP-UTILITIES.htm", "Tarnel: Utilities"),
    topic(200, "POP-OUTLOOKIMPORT.htm", "Tarnel: Outlook Task Import"),
    topic(helpNumber::outlookWizard, "POP-OUTLOOKINTEGRATE.htm", "Tarnel: Outlook Task Import"),
    topic(300, "POP-PRINTDIALOG.htm", "Tarnel: Print and Print Preview"),
    topic(400, "POP-ARRANGER.htm", "Tarnel: Data Arrangement"),
    topic(500, "POP-SETTINGS.htm", "Tarnel: Settings"),
    topic(502, "POP-DATESETTINGS.htm", "Tarnel: Settings"),
    topic(600, "POP-TASKDIALOG.htm", "Tarnel: Creating New Tasks"),
    topic(601, "POP-EXISTINGTASKDIALOG.htm", "Tarnel: Working With Existing Tasks"),
    topic(700, "POP-TASDIALOG.htm", "Tarnel: Working with Task Appointments"),
    topic(800, "POP-ADDPROJECT.htm", "Tarnel: Adding a Project"),
    topic(900, "SYSTRAY.htm", "Tarnel: The System Tray Menu"),
    topic(5000, "helpindex.htm", "Tarnel: Help Index"),
    topic(6000, "strategies.htm", "Tarnel Strategies"),
    topic(helpNumber::tour, "Tarnel-TOUR1.htm", "Tarnel Getting Started Tour"),
};

}  // namespace

const HelpTopic* findHelpTopic(std::int32_t HelpNum) {
  const auto* const found = std::find_if(topics.begin(), topics.end(), [HelpNum](const HelpTopic& each) {
    return each.first <= HelpNum && HelpNum <= each.last;
  });
  return found == topics.end() ? nullptr : found;
}

}  // namespace tarnel
