#include "FormCommands.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "FormControls.h"
#include "SSSplitter.h"
#include "SftTabs.h"
#include "WebBrowser.h"
#include "ctDropDate.h"

namespace tarnel::script {
namespace {

using Words = std::vector<std::string>;

int wholeNumber(const std::string& word) {
  int number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc{} || end != word.data() + word.size())
    throw CommandError("\"" + word + "\" is no whole number");
  return number;
}

// A length in twips. A million, some 1700 centimetres, is more than any screen and still exact.
float length(const std::string& word) {
  const int twips = wholeNumber(word);
  if (twips < 0 || twips > 1'000'000) throw CommandError("A length goes from 0 to 1000000 twips, not " + word);
  return static_cast<float>(twips);
}

template <class Kind>
Kind& controlOf(const Form& form, const std::string& fullName) {
  if (auto* control = controlNamed<Kind>(form, fullName)) return *control;
  throw CommandError(form.Name() + " has no such control for this command: " + fullName);
}

template <class Kind>
Kind& onlyControl(const Form& form, const char* what) {
  if (auto* control = firstControl<Kind>(form)) return *control;
  throw CommandError(form.Name() + " has no " + what);
}

// Control arrays of one kind, addressed by number alone.
template <class Kind>
Kind& scheduleOf(const Form& form, const std::string& number) {
  return controlOf<Kind>(form, "ctDaySked(" + number + ")");
}

// Refuses what a user could not reach.
template <class Kind>
Kind& reachable(Kind& control) {
  if (!control.Enabled()) throw CommandError(control.fullName() + " is disabled");
  for (const Control* outer = &control; outer; outer = outer->container())
    if (!outer->Visible()) throw CommandError(control.fullName() + " is not in view");
  return control;
}

SmartItem& visibleItem(SmartItem& item, const SmartUI& control) {
  if (!item.Visible()) throw CommandError("The item " + item.Key() + " of " + control.fullName() + " is not in view");
  return item;
}

// An item of the control, or an entry of one of its menus.
SmartItem& itemOf(SmartUI& control, const std::string& key) {
  if (control.Items().Exists(key)) return visibleItem(control.Items().Item(key), control);
  for (SmartItem& item : control.Items())
    if (item.Type() == SmartItemType::menu && item.SubItems().Exists(key))
      return visibleItem(visibleItem(item, control).SubItems().Item(key), control);
  throw CommandError(control.fullName() + " has no item " + key);
}

bool isPressed(SmartItemType type) {
  switch (type) {
    case SmartItemType::button:
    case SmartItemType::menu:
    case SmartItemType::menuEntry:
    case SmartItemType::checkBox:
    case SmartItemType::option:
    case SmartItemType::toggleButton:
    case SmartItemType::checkRow:
      return true;
    default:
      return false;
  }
}

bool staysChecked(SmartItemType type) { return type == SmartItemType::option || type == SmartItemType::toggleButton; }

bool isChecked(SmartItemType type) {
  return type == SmartItemType::checkRow || type == SmartItemType::checkBox || staysChecked(type);
}

Json list(Form& form, const Words& words) {
  const auto& control = controlOf<SmartUI>(form, words[1]);
  return {{"control", control.fullName()}, {"items", itemFacts(control)}};
}

Json sked(Form& form, const Words& words) { return {{"rows", rowFacts(scheduleOf<ctMDay>(form, words[1]))}}; }

Json show(Form& form, const Words&) { return formFacts(form); }

Json tab(Form& form, const Words& words) {
  auto& tabs = reachable(onlyControl<SftTabs>(form, "tabs"));
  const int number = wholeNumber(words[1]);
  if (number < 0 || static_cast<std::size_t>(number) >= tabs.Count()) throw CommandError("There is no tab " + words[1]);
  if (!tabs.TabEnabled(static_cast<std::size_t>(number))) throw CommandError("Tab " + words[1] + " is disabled");
  tabs.switchTo(static_cast<std::size_t>(number));
  return Json::object();
}

Json key(Form& form, const Words& words) {
  int code = wholeNumber(words[1]);
  if (code < 1 || code > 255) throw CommandError("A key code goes from 1 to 255, not " + words[1]);
  form.keyDown(code);
  return Json::object();
}

Json closebox(Form& form, const Words&) {
  form.unload();
  return Json::object();
}

Json click(Form& form, const Words& words) {
  auto& control = reachable(controlOf<SmartUI>(form, words[1]));
  SmartItem& item = itemOf(control, words[2]);
  if (!isPressed(item.Type())) throw CommandError("The item " + words[2] + " can't be pressed");
  control.press(item);
  return Json::object();
}

Json check(Form& form, const Words& words) {
  auto& control = reachable(controlOf<SmartUI>(form, words[1]));
  SmartItem& item = itemOf(control, words[2]);
  if (!isChecked(item.Type())) throw CommandError("The item " + words[2] + " has no check mark");
  if (words[3] != "on" && words[3] != "off") throw CommandError("A check is on or off, not " + words[3]);
  const bool on = words[3] == "on";
  if (!on && staysChecked(item.Type())) throw CommandError("The item " + words[2] + " goes off with another's choice");
  if (item.Checked() != on) control.press(item);
  return Json::object();
}

Json choose(Form& form, const Words& words) {
  auto& control = reachable(controlOf<SmartUI>(form, words[1]));
  SmartItem& dropDown = itemOf(control, words[2]);
  if (dropDown.Type() != SmartItemType::dropDown) throw CommandError("The item " + words[2] + " is no drop-down");
  for (SmartItem& entry : dropDown.SubItems()) {
    const bool canBeChosen = entry.Type() == SmartItemType::dropDownEntry || entry.Type() == SmartItemType::checkRow;
    if (entry.Caption() != words[3] || !entry.Visible() || !canBeChosen) continue;
    control.choose(dropDown, entry);
    return Json::object();
  }
  throw CommandError("The drop-down " + words[2] + " has no entry \"" + words[3] + "\"");
}

Json date(Form& form, const Words& words) {
  auto& box = reachable(onlyControl<ctDropDate>(form, "date box"));
  const auto day = words[1].size() == 10 ? parseIsoDate(words[1]) : std::nullopt;
  if (!day) throw CommandError("A date is written YYYY-MM-DD, not " + words[1]);
  if (!ctDropDate::canShow(*day)) throw CommandError("The last day is 9999-12-30, not " + words[1]);
  box.choose(*day);
  return Json::object();
}

Json select(Form& form, const Words& words) {
  auto& schedule = reachable(scheduleOf<ctMDay>(form, words[1]));
  const int index = wholeNumber(words[2]);
  if (index < 1 || index > schedule.AppCount())
    throw CommandError(schedule.fullName() + " has " + std::to_string(schedule.AppCount()) + " rows, not " + words[2]);
  schedule.select(static_cast<std::int16_t>(index));
  return Json::object();
}

Json follow(Form& form, const Words& words) {
  reachable(onlyControl<WebBrowser>(form, "browser")).followLink(words[1]);
  return Json::object();
}

Json resize(Form& form, const Words& words) {
  const float width = length(words[1]);
  const float height = length(words[2]);
  form.Move(form.Left(), form.Top(), width, height);
  return Json::object();
}

Json split(Form& form, const Words& words) {
  auto& splitter = reachable(controlOf<SSSplitter>(form, words[1]));
  splitter.drag(length(words[2]));
  return Json::object();
}

struct Command {
  Json (*run)(Form&, const Words&);
  const char* usage;
};

const std::map<std::string_view, Command>& commands() {
  static const std::map<std::string_view, Command> all{
      {"show", {show, "show"}},
      {"list", {list, "list CONTROL"}},
      {"sked", {sked, "sked N"}},
      {"tab", {tab, "tab N"}},
      {"key", {key, "key CODE"}},
      {"closebox", {closebox, "closebox"}},
      {"click", {click, "click CONTROL KEY"}},
      {"check", {check, "check CONTROL KEY on|off"}},
      {"choose", {choose, "choose CONTROL KEY CAPTION"}},
      {"date", {date, "date YYYY-MM-DD"}},
      {"select", {select, "select N INDEX"}},
      {"follow", {follow, "follow LINK"}},
      {"resize", {resize, "resize WIDTH HEIGHT"}},
      {"split", {split, "split NAME WIDTH"}},
  };
  return all;
}

}  // namespace

Json runCommand(Form& form, const std::vector<std::string>& words) {
  const auto command = commands().find(words.front());
  if (command == commands().end()) throw CommandError("There is no command " + words.front());
  const std::string_view usage = command->second.usage;
  const auto wanted = static_cast<std::size_t>(std::count(usage.begin(), usage.end(), ' ')) + 1;
  if (words.size() != wanted) throw CommandError("The command is: " + std::string(usage));
  return command->second.run(form, words);
}

}  // namespace tarnel::script
