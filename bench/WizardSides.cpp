#include "WizardSides.h"

#include <cstdlib>
#include <optional>

#include "MailboxFile.h"
#include "TaskPicker.h"
#include "TaskTransfer.h"
#include "m_OutlookWizard.h"

namespace tarnel::bench {

WizardSides::WizardSides(BenchTasks& tasks)
    : mailbox_(platform_.applicationFolder / "mailbox"),
      outlook_([](const std::string&) { return std::nullopt; }, mailbox_, Locale{}, platform_.clock),
      lists(form_) {
  mailbox::createMailbox(mailbox_);
  platform_.use(tasks.provider());
  platform_.use(outlook_);
  session().theszConnect = tasks.connect();
  session().theImportanceNames = {"None", "Low", "Normal", "High", "Urgent"};
  session().theDifficultyNames = session().theImportanceNames;
  session().theDateFormats[dateFormat::hoursInDay] = std::string("8");
  session().theDateFormats[dateFormat::dayStart] = "480";
  session().theDateFormats[dateFormat::dayEnd] = "1020";
  form_.formLoading = true;
  setupSkedPickTasksList(lists.smtSkedPickTasks);
  setupSkedPickTasksSort(lists.smtSkedPickTasks);
  putPickerOnStart(lists.smtSkedPickTasks);
  form_.formLoading = false;
}

void WizardSides::copyAll() {
  for (SmartItem& row : lists.tarnelList.Items()) row.setChecked(true);
  if (!Tarnel2OUTTasks(lists)) std::abort();
}

}  // namespace tarnel::bench
