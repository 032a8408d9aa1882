#include "ScriptDesktop.h"

#include <algorithm>
#include <iostream>

#include "CommandWords.h"
#include "FormCommands.h"
#include "FormControls.h"
#include "SpellEditor.h"

namespace tarnel::script {
namespace {

void write(std::ostream& facts, const Json& fact) {
  // Flushed, so that whoever reads them over a pipe sees each fact when it happens; bytes that are no UTF-8 don't end
  // the run.
  facts << fact.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

const char* iconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::critical:
      return "critical";
    case MessageIcon::information:
      return "information";
    case MessageIcon::none:
      break;
  }
  return "none";
}

// A form may be destroyed while it is shown: one that is gone from the list is not asked.
bool isShown(const Form* form) {
  const std::vector<Form*> open = openForms();
  return std::find(open.begin(), open.end(), form) != open.end() && form->Visible();
}

constexpr std::size_t longestCommand = 100'000;  // bytes

// The next line, of one that is too long no more than its beginning. False at the end.
bool readLine(std::istream& commands, std::string& line) {
  line.clear();
  for (int c = commands.get(); c != std::istream::traits_type::eof(); c = commands.get()) {
    if (c == '\n') return true;
    if (line.size() <= longestCommand) line += static_cast<char>(c);
  }
  return !line.empty();
}

}  // namespace

void ScriptDesktop::tellEvent(const std::string& name, const Arguments& arguments) {
  Json fact{{"event", name}};
  for (const auto& [argument, value] : arguments) fact[argument] = valueFact(value);
  write(facts_, fact);
}

MessageAnswer ScriptDesktop::message(const Message& message) {
  Json fact{{"icon", iconName(message.icon)}, {"title", message.title}, {"text", message.text}};
  if (message.buttons == MessageButtons::ok) {
    write(facts_, {{"message", fact}});
    return MessageAnswer::ok;
  }
  MessageAnswer answer = MessageAnswer::no;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  fact["answer"] = answer == MessageAnswer::yes ? "yes" : "no";
  write(facts_, {{"question", fact}});
  return answer;
}

void ScriptDesktop::report(const FailureReport& report) {
  write(facts_, {{"report",
                  {{"project", report.project},
                   {"module", report.module},
                   {"procedure", report.procedure},
                   {"text", report.text},
                   {"number", report.number},
                   {"lineMark", report.lineMark},
                   {"profile", report.profile}}}});
}

void ScriptDesktop::runModal(Form& form) {
  Form* const shown = &form;
  if (auto* editor = firstControl<SpellEditor>(form)) editor->setOutput(documents_);
  std::string line;
  while (isShown(shown)) {
    if (readLine(commands_, line)) {
      run(form, line);
      continue;
    }
    form.unload();
    // A form that is unloading already does not go by that; it must not be waited for without input.
    if (isShown(shown)) form.hide();
  }
}

void ScriptDesktop::run(Form& form, const std::string& line) {
  if (line.size() > longestCommand) {
    const std::string beginning = line.substr(0, 100) + "...";
    return write(facts_, {{"error", "A command has at most 100000 bytes"}, {"command", beginning}});
  }
  try {
    const auto words = commandWords(line);
    if (!words) throw CommandError("A quote is not closed");
    if (words->empty()) return;
    Json reply{{"reply", words->front()}};
    if (words->front() == "answer") {
      queueAnswer(*words);
    } else {
      reply.update(runCommand(form, *words));
    }
    if (words->front() == "show") {
      reply["pointer"] = static_cast<int>(pointer_);
      reply["meSizes"] = sizes_ ? sizes_(form) : std::vector<float>();
    }
    write(facts_, reply);
  } catch (const std::exception& error) {
    write(facts_, {{"error", error.what()}, {"command", line}});
  }
}

void ScriptDesktop::queueAnswer(const std::vector<std::string>& words) {
  if (words.size() != 2 || (words[1] != "yes" && words[1] != "no")) throw CommandError("The command is: answer yes|no");
  answers_.push_back(words[1] == "yes" ? MessageAnswer::yes : MessageAnswer::no);
}

}  // namespace tarnel::script
