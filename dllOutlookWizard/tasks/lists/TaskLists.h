#pragma once

#include <memory>
#include <string>

#include "FormState.h"
#include "Recordset.h"
#include "SmartUI.h"
#include "TaskPicker.h"
#include "clsTaskList.h"

namespace tarnel {

// Pictures of a row, which also tell whether it is linked.
namespace rowPicture {
inline constexpr const char* tarnel = "Tarnel";    // in the Outlook list: linked to a task
inline constexpr const char* outlook = "OUTLOOK";  // in the Tarnel list: linked to an item; in the other: not linked
inline constexpr const char* none = "NONE";        // in the Tarnel list: not linked
}  // namespace rowPicture

// Names of the entries of a row's tag that are read again, besides those of outlookLink.
namespace rowTag {
inline constexpr const char* outlookId = "OUTLOOKID";
inline constexpr const char* timeNeeded = "TIMENEEDED";
inline constexpr const char* timeSpent = "TIMESPENT";
}  // namespace rowTag

// The two check lists with the picker that says what the Tarnel one shows: index 0 the tasks of the database, 1 the
// open tasks of Outlook.
class TaskLists {
 public:
  explicit TaskLists(FormState& form);

  SmartUI smtSkedPickTasks;
  SmartUI tarnelList;   // smtTaskList(0)
  SmartUI outlookList;  // smtTaskList(1)

  // The records of the last fill or transfer. After a fill just those that the Tarnel list shows.
  std::shared_ptr<clsTaskList> theTaskData;
  std::shared_ptr<ado::Recordset> theTaskRows;

  // theTaskRows for those who go on with it: failure 91 where there is none, as after a failure that took the form
  // away. The caller's share keeps the records alive while waiting events run, which may put others in their place.
  std::shared_ptr<ado::Recordset> taskRows() const;

  bool theShowCompleted = false;
  std::string theTaskPickName;  // both empty until the user changes the pick
  std::string theTaskPickKey;

  // Codes of the picker's choice.
  const std::string& pickCode() const { return smtSkedPickTasks.Items().Item(taskPickKey).Tag(); }
  const std::string& sortCode() const { return smtSkedPickTasks.Items().Item(sortPickKey).Tag(); }

  // Fills the list from the database. False after a reported failure; the rows added before it stay.
  bool GetTarnelTasks(const std::string& sortCode, const std::string& pickCode, SmartUI& list);
  // The same for the Tarnel list, as the picker is set.
  bool refillTarnelList() { return GetTarnelTasks(sortCode(), pickCode(), tarnelList); }
  // Fills the Outlook list with the first 2000 open tasks. False, and told, when Outlook is out of reach. Other
  // failures go to the caller.
  bool GetOutlookTasks();

  // Opens the whole of TASKS in the place of the current records. Failure 91 where that failed, which was reported
  // then.
  void openAllTasks();
  // Closes the records if they are open, and lets go of them.
  void closeRows();

 private:
  void openTasks(const std::string& statement);
  void smtSkedPickTasks_Change(SmartItem& item);
  void switchCompleted(SmartItem& entry);
  void refillByPicker();

  FormState& form_;
  Connection onPick_;
};

}  // namespace tarnel
