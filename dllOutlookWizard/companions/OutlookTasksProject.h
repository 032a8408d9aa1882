#pragma once

#include <functional>

#include "Platform.h"

namespace tarnel {

// Work on the project of the task database that holds the tasks from Outlook: its row in PROJECTS, and its key in the
// setting OutlookProject. The database is the one that the wizard works on. Failures are the database's.
class OutlookTasksProject : public TarnelUtilities {
 public:
  static constexpr const char* name = "Outlook Tasks";

  // `newKey` gives a new GUID text at each call.
  OutlookTasksProject(ado::Provider& database, std::function<std::string()> newKey)
      : database_(database), newKey_(std::move(newKey)) {}

  // makeOutlookProject: makes sure that the project exists; the texts say nothing. endOutlookProject: its tasks go to
  // the project with the key `first` and the name `second`, and it ends; nothing happens when there is none.
  void run(Code code, const std::string& first, const std::string& second) override;

 private:
  std::string key(ado::Session& database) const;
  void setKey(ado::Session& database, const std::string& key) const;
  void make(ado::Session& database) const;
  void end(ado::Session& database, const std::string& heirKey, const std::string& heirName) const;

  ado::Provider& database_;
  std::function<std::string()> newKey_;
};

}  // namespace tarnel
