#include "IntegrationModes.h"

namespace tarnel {
namespace {

template <class Wanted>
std::optional<std::int32_t> firstMode(const IntegrationModes& modes, Wanted wanted) {
  for (std::size_t mode = 0; mode < modes.size(); ++mode)
    if (wanted(modes[mode])) return static_cast<std::int32_t>(mode);
  return {};
}

}  // namespace

const IntegrationModes taskModes{{
    {"TASK1", "[1] Do not integrate Tarnel with Outlook tasks.",
     "Tarnel does not use Outlook Tasks, but you can manually import Outlook Tasks. This setting makes sense when you "
     "do not use Outlook Tasks."},
    {"TASK2", "[2] Maintain an Outlook Tasks Project in Tarnel.",
     "Tarnel creates a Project of your Outlook Tasks. Each time you go to this project, an update is performed. This "
     "is a good setting if you sometimes create tasks in Outlook, but want to work with them in this program."},
    {"TASK3", "[3] I will use the Outlook Wizard when I want to copy Tasks to and from Outlook.",
     "This setting is best if you want to decide when to copy tasks between the two programs."},
    {"TASK4", "[4] Automatically update Outlook with Current Tarnel tasks.",
     "With this setting, Tarnel maintains your Current List in Outlook. Each time you go to the Current Tab, the "
     "status "
     "of each task is updated from Outlook."},
}};

const IntegrationModes apptModes{{
    {"APPT1", "[1] Do not integrate Tarnel with Outlook appointments.",
     "If you don't use Outlook to maintain your schedule, this setting is best."},
    {"APPT2", "[2] Only show Outlook Appointments in Tarnel.",
     "If you only want to see Outlook Appointments in this program so you can schedule around them, this setting makes "
     "the most sense."},
    {"APPT3", "[3] I will use the Outlook Wizard when I want to copy Tasks Appointments to Outlook.",
     "If you prefer to decide when to copy your Task Appointments to Outlook, use this setting."},
    {"APPT4", "[4] Automatically update Outlook with Tarnel Task Appointments.",
     "If you want to automatically create Outlook Appointments when you create Tarnel Task Appointments, use this "
     "setting."},
}};

std::optional<std::int32_t> modeOfKey(const IntegrationModes& modes, std::string_view key) {
  return firstMode(modes, [key](const IntegrationMode& mode) { return mode.key == key; });
}

std::optional<std::int32_t> checkedMode(const IntegrationModes& modes, const SmartItems& items) {
  return firstMode(modes, [&items](const IntegrationMode& mode) { return items.Item(mode.key).Checked(); });
}

}  // namespace tarnel
