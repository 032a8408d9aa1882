#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Desktop.h"
#include "Variant.h"

namespace tarnel {
class DocumentOutput;
}

namespace tarnel::script {

// A desktop without a screen: reads what a user does as commands, one a line, and writes what a user would see as
// facts, one JSON object a line, in the order in which things happen. Each command ends in one "reply" or "error"
// line, after the facts that it caused; a command that can't be carried out changes nothing. The commands go to the
// form that was shown last. Progress and waiting events say nothing.
class ScriptDesktop : public Desktop {
 public:
  using Arguments = std::vector<std::pair<std::string, Variant>>;

  // Both streams must outlive the desktop.
  ScriptDesktop(std::istream& commands, std::ostream& facts) : commands_(commands), facts_(facts) {}

  // Where `show` takes a form's "meSizes" from, which no control holds. Without it they are empty.
  void setSizes(std::function<std::vector<float>(const Form&)> sizes) { sizes_ = std::move(sizes); }

  // Where forms print and preview. Without it they can't.
  void setDocuments(std::shared_ptr<DocumentOutput> documents) { documents_ = std::move(documents); }

  // A fact that comes from outside the forms.
  void tellEvent(const std::string& name, const Arguments& arguments = {});

  // A box with Yes and No is answered by the next answer that is waiting, with No when none is.
  MessageAnswer message(const Message& message) override;
  void report(const FailureReport& report) override;
  void doEvents() override {}
  // Reads commands until the form is gone from the screen. The end of the input closes it.
  void runModal(Form& form) override;
  void setMousePointer(MousePointer pointer) override { pointer_ = pointer; }
  MousePointer mousePointer() const override { return pointer_; }
  void progress(int /*done*/, int /*total*/) override {}

 private:
  void run(Form& form, const std::string& line);
  void queueAnswer(const std::vector<std::string>& words);

  std::istream& commands_;
  std::ostream& facts_;
  std::function<std::vector<float>(const Form&)> sizes_;
  std::shared_ptr<DocumentOutput> documents_;
  std::deque<MessageAnswer> answers_;
  MousePointer pointer_ = MousePointer::standard;
};

}  // namespace tarnel::script
