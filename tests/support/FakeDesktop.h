#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "Desktop.h"

namespace tarnel::test {

// Records what the user would see, and answers at once.
struct FakeDesktop : Desktop {
  std::vector<Message> messages;
  std::vector<FailureReport> reports;
  // For questions, the first one first; with none left the answer is no.
  std::deque<MessageAnswer> answers;
  std::vector<std::pair<int, int>> progressSteps;
  // Every pointer that was set.
  std::vector<MousePointer> pointers;
  // Run inside doEvents and inside runModal, as the user's acts would be.
  std::function<void()> onEvents;
  std::function<void(Form&)> onModal;

  std::vector<std::string> messageTexts() const {
    std::vector<std::string> texts;
    for (const Message& message : messages) texts.push_back(message.text);
    return texts;
  }

  MessageAnswer message(const Message& message) override {
    messages.push_back(message);
    if (message.buttons == MessageButtons::ok) return MessageAnswer::ok;
    if (answers.empty()) return MessageAnswer::no;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void report(const FailureReport& report) override { reports.push_back(report); }
  void doEvents() override {
    if (onEvents) onEvents();
  }
  void runModal(Form& form) override {
    if (onModal) onModal(form);
  }
  void setMousePointer(MousePointer pointer) override { pointers.push_back(pointer); }
  MousePointer mousePointer() const override { return pointers.empty() ? MousePointer::standard : pointers.back(); }
  void progress(int done, int total) override { progressSteps.emplace_back(done, total); }
};

}  // namespace tarnel::test
