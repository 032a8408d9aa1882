#pragma once

#include <cstdint>
#include <string>

namespace tarnel {

class Form;

enum class MessageIcon { none = 0, critical = 16, information = 64 };
enum class MessageButtons { ok = 0, yesNo = 4 };
enum class MessageAnswer { ok = 1, yes = 6, no = 7 };

struct Message {
  std::string text;  // lines end in CR LF
  std::string title;
  MessageIcon icon = MessageIcon::information;
  MessageButtons buttons = MessageButtons::ok;
};

enum class MousePointer { standard = 0, hourglass = 11 };

// What an unforeseen failure is told with. The host's library has room for three values more, which are always empty.
struct FailureReport {
  std::string project;
  std::string module;
  std::string procedure;
  std::string text;
  std::int32_t number = 0;
  std::int32_t lineMark = 0;
  std::string profile;  // empty when no Outlook profile is chosen
  // What was in use, and where the report is kept. The procedure that failed doesn't know them: who passes the report
  // on adds them.
  std::string version{};
  std::string database{};
  std::string mailbox{};
  std::string keptIn{};
};

// The person's side of the program: a screen with keyboard and mouse, or what takes their place. One for a thread.
class Desktop {
 public:
  virtual ~Desktop() = default;

  // Shows a box above all forms and returns when it was answered.
  virtual MessageAnswer message(const Message& message) = 0;
  // Tells of a failure in full, so that its reader can pass it on, and returns when it was read.
  virtual void report(const FailureReport& report) = 0;
  // Lets waiting events run; returns when none waits.
  virtual void doEvents() = 0;
  // Lets the user act in a visible form, and in no other, until it is hidden or unloaded.
  virtual void runModal(Form& form) = 0;
  virtual void setMousePointer(MousePointer pointer) = 0;
  virtual MousePointer mousePointer() const = 0;
  // `done` of `total` steps of a long run are done; `done` equal to `total` ends the showing.
  virtual void progress(int done, int total) = 0;
};

}  // namespace tarnel
