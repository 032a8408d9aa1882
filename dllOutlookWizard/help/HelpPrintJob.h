#pragma once

#include <filesystem>
#include <functional>

#include "HelpPrintSettings.h"
#include "SpellEditor.h"
#include "WebBrowser.h"

namespace tarnel {

// Prints or previews the topic that the browser shows. The steps are in the order on which the editor control
// relies; waiting events run between them.
class HelpPrintJob {
 public:
  enum class Kind { print, preview };

  // The form's parts, which outlive the job. `helpPagePath` is where the topic's file is taken from and written to.
  struct Parts {
    WebBrowser& browser;
    SpellEditor& editor;
    HelpPrintSettings& settings;
    std::filesystem::path& helpPagePath;
    std::function<void()> MakeHelpHTML;
  };

  HelpPrintJob(Kind kind, Parts parts) : kind_(kind), parts_(std::move(parts)) {}

  // Asks first, and does nothing on No. The mouse pointer is back also after a failure.
  void run();

 private:
  bool prints() const { return kind_ == Kind::print; }
  void setPage();
  void setStates();
  void findPage();
  void load();
  void put();

  Kind kind_;
  Parts parts_;
};

}  // namespace tarnel
