#include "FakeDesktop.h"

namespace tarnel::test {

std::vector<std::string> FakeDesktop::messageTexts() const {
  std::vector<std::string> texts;
  for (const Message& message : messages) texts.push_back(message.text);
  return texts;
}

MessageAnswer FakeDesktop::message(const Message& message) {
  messages.push_back(message);
  if (message.buttons == MessageButtons::ok) return MessageAnswer::ok;
  if (answers.empty()) return MessageAnswer::no;
  const MessageAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

void FakeDesktop::doEvents() {
  ++eventRuns;
  if (onEvents) onEvents();
}

void FakeDesktop::runModal(Form& form) {
  if (onModal) onModal(form);
}

}  // namespace tarnel::test
