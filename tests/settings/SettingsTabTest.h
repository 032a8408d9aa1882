#pragma once

#include <gtest/gtest.h>

#include "Failure.h"
#include "SettingsItems.h"
#include "SettingsTab.h"
#include "TestPlatform.h"

namespace tarnel::test {

// A settings tab without a form, three projects, of which "Outlook Tasks" holds the tasks from Outlook, and a record
// of what the tab raises.
struct SettingsTabTest : testing::Test {
  SettingsTabTest() {
    session().theProjectKeys = {"KEY-A", "KEY-O", "KEY-Z"};
    session().theProjectNames = {"Attic", "Outlook Tasks", "Zoo"};
    session().theOutlookProjectKey = "KEY-O";
    record(tab_.lockTabs, "lock");
    record(tab_.OutlookPrefsChanged, "prefs");
    record(tab_.TurnOffOutlookCurrentTasks, "currentOff");
    record(tab_.MOPKilled, "projectEnded");
  }

  void inForce(std::int32_t taskMode, std::int32_t apptMode = 0) {
    session().OutTaskSetting = taskMode;
    session().OutApptSetting = apptMode;
    tab_.setTheSettings();
  }
  SmartItem& item(std::string_view key) { return tab_.smtSettings.Items().Item(key); }
  bool has(std::string_view key) { return tab_.smtSettings.Items().Exists(key); }
  void click(std::string_view key) { tab_.smtSettings.press(item(key)); }
  void choose(std::string_view key, std::size_t entry) {
    tab_.smtSettings.choose(item(key), item(key).SubItems().at(entry));
  }
  std::string note(std::string_view key) { return std::get<std::string>(item(key).Value().value()); }

  // What has happened since the last call, in its order.
  std::string happened() { return std::exchange(happened_, {}); }
  const std::vector<FailureReport>& reports() const { return platform_.errorReport.reports; }

  TestPlatform platform_;
  FormState state_;
  SettingsTab tab_{state_};

 private:
  void record(Signal<>& event, const char* name) {
    connections_.push_back(event.connect([this, name] { happened_ += std::string(name) + " "; }));
  }

  std::string happened_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel::test
