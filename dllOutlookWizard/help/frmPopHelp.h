#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "Form.h"
#include "HelpPrintJob.h"
#include "HelpPrintSettings.h"
#include "SSResizer.h"
#include "SmartUI.h"
#include "SpellEditor.h"
#include "WebBrowser.h"

namespace tarnel {

// The help popup: one topic of the host's help in a browser, with a bar to print it, preview it and go back. It does
// not unload itself: its opener listens to closePop.
class frmPopHelp : public Form {
 public:
  frmPopHelp();

  // The text is a CStringBag's; it is read at each print.
  bool setHelpPrinterSettings(const std::string& helpstring);
  // Shows a topic. A number that no topic has leaves the browser empty and the caption as it is.
  void Setup(std::int32_t HelpNum);

  // Full path of the topic's file; empty before a topic was found.
  const std::filesystem::path& helpPagePath() const { return helpPagePath_; }
  // 7000 where the form shows the tour, else 0.
  std::int32_t helpTourMark() const { return helpTourMark_; }

  // The user wants the form to go, or it is going already.
  Signal<> closePop;
  // At the end of Setup, with the address of the page.
  Signal<std::string&> setHelpPage;

 protected:
  void Form_Resize() override;
  void Form_KeyDown(int& keyCode) override;
  void Form_QueryUnload() override;

 private:
  void makeItems();
  void showTopic(std::int32_t HelpNum);
  bool MakeHelpHTML();
  void smtAction_Click(const SmartItem& item);
  void run(HelpPrintJob::Kind kind);

  WebBrowser browsePWindow_;
  SmartUI smtAction_;
  SpellEditor SpellEditor1_;
  SSResizer resizer_;
  std::string helpPrintText_;
  std::filesystem::path helpPagePath_;
  std::int32_t helpTourMark_ = 0;
  HelpPrintSettings printSettings_;
  std::vector<Connection> connections_;
};

}  // namespace tarnel
