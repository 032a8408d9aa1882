#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "Desktop.h"

namespace tarnel::test {

// Records what the user would see, and answers at once.
class FakeDesktop : public Desktop {
 public:
  std::vector<Message> messages;
  std::vector<FailureReport> reports;
  // For questions, the first one first; with none left the answer is no.
  std::deque<MessageAnswer> answers;
  int eventRuns = 0;
  std::vector<std::pair<int, int>> progressSteps;
  // Every pointer that was set.
  std::vector<MousePointer> pointers;
  // Run inside doEvents and inside runModal, as the user's acts would be; nothing where unset.
  std::function<void()> onEvents;
  std::function<void(Form&)> onModal;

  // The texts of the messages alone.
  std::vector<std::string> messageTexts() const;

  MessageAnswer message(const Message& message) override;
  void report(const FailureReport& report) override { reports.push_back(report); }
  void doEvents() override;
  void runModal(Form& form) override;
  void setMousePointer(MousePointer pointer) override { pointers.push_back(pointer); }
  MousePointer mousePointer() const override { return pointers.empty() ? MousePointer::standard : pointers.back(); }
  void progress(int done, int total) override { progressSteps.emplace_back(done, total); }
};

}  // namespace tarnel::test
