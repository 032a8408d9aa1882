#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Failure.h"
#include "TestPlatform.h"
#include "frmPopHelp.h"

namespace tarnel::test {

// Keeps the documents instead of putting them on paper.
struct RecordedOutput : DocumentOutput {
  std::vector<Document> jobs;
  std::vector<std::string> names;
  bool failing = false;

  void print(const Document& document, const std::string& jobName) override {
    if (failing) throw Failure(failure::pathAccess, "The printer is on fire");
    document.progress(1, 1);
    jobs.push_back(document);
    names.push_back(jobName);
  }
  void preview(const Document&) override {}
};

// The popup on topic 250, in a help folder with its page alone.
class ShownHelp {
 public:
  ShownHelp() {
    std::filesystem::create_directories(folder());
    platform.applicationFolder.write("help/POP-OUTLOOKINTEGRATE.htm", "<p>Topic");
    form->load();
    form->Setup(250);
    settings();
    editor().setOutput(output);
    onCall_ = editor().called.connect([this](std::string_view name) { calls.append(name).push_back(' '); });
  }

  void settings(const std::string& top = "2.5", const std::string& left = "Tarnel - Version 9",
                const std::string& right = "<#>") {
    form->setHelpPrinterSettings("COPIES=\tTOP=" + top +
                                 "\tBOTTOM=2\tRIGHT=1.5\tLEFT=1\tHCOLOR=0\tHSIZE=10\tFCOLOR=0\tFFONT=Serif\tFSIZE=9\t"
                                 "FLEFT=" +
                                 left + "\tFRIGHT=" + right + "\t");
  }
  std::filesystem::path folder() const { return platform.applicationFolder / "help"; }

  template <class Kind>
  Kind& control() {
    for (Control* each : form->controls())
      if (auto* found = dynamic_cast<Kind*>(each)) return *found;
    throw Failure(failure::noSuchItem, "The form has no such control");
  }
  WebBrowser& browser() { return control<WebBrowser>(); }
  SpellEditor& editor() { return control<SpellEditor>(); }
  SmartUI& bar() { return control<SmartUI>(); }

  void click(const std::string& key) { bar().press(bar().Items().Item(key)); }
  void click(const std::string& key, const std::string& entry) {
    bar().press(bar().Items().Item(key).SubItems().Item(entry));
  }

  TestPlatform platform;
  std::shared_ptr<RecordedOutput> output = std::make_shared<RecordedOutput>();
  std::unique_ptr<frmPopHelp> form = std::make_unique<frmPopHelp>();
  std::string calls;

 private:
  Connection onCall_;
};

}  // namespace tarnel::test
