#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Date.h"

namespace tarnel::host {

// A life-like set of data to try the program on: whole days are counted from the day it is made for.

struct DemoProject {
  std::string key;
  std::string name;
};

struct DemoTask {
  std::string key;
  std::size_t project = 0;  // place in DemoContents::projects
  std::string description;
  std::string notes;
  int status = 3;  // 0 done, 1 in progress, 2 waiting, 3 not started
  bool current = false;
  std::optional<Date> deadline;
  Date created;
  std::optional<Date> done;
  int importance = 2;  // 0 to 4, as is the next
  int difficulty = 2;
  int minutesNeeded = 0;
  int minutesSpent = 0;
  int minutesScheduled = 0;  // of all its appointments together
  int points = 0;
  bool hasChecklist = false;
  bool linked = false;  // is in the demo mailbox too
  std::vector<std::string> keywords;
};

struct DemoAppointment {
  std::string key;
  std::size_t task = 0;  // place in DemoContents::tasks
  Date start;
  Date end;
  bool linked = false;  // is in the demo mailbox too
};

struct DemoContents {
  std::vector<DemoProject> projects;
  std::vector<DemoTask> tasks;
  std::vector<DemoAppointment> appointments;
};

// `newKey` gives a new GUID text at each call.
DemoContents demoContents(Date today, const std::function<std::string()>& newKey);

}  // namespace tarnel::host
