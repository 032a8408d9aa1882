#pragma once

#include <filesystem>

#include "BenchTasks.h"
#include "OutlookFactory.h"
#include "TaskLists.h"
#include "TestPlatform.h"

namespace tarnel::bench {

// The wizard's lists on a task database and a new, empty mailbox. One at a time: it sets up the session.
class WizardSides {
 public:
  explicit WizardSides(BenchTasks& tasks);

  // Copies or updates every task of the Tarnel list, which must be filled. A failure ends the program.
  void copyAll();
  const std::filesystem::path& mailbox() const { return mailbox_; }

 private:
  test::TestPlatform platform_;
  std::filesystem::path mailbox_;
  mailbox::OutlookFactory outlook_;
  FormState form_;

 public:
  TaskLists lists;
};

}  // namespace tarnel::bench
