#include "frmPopHelp.h"

#include "HelpFolder.h"
#include "HelpTopics.h"
#include "StandardHandler.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

// Twips.
constexpr Placement firstPlace{1800, 1200, 9600, 8100};
constexpr float barHeight = 420;
constexpr float tourWidth = 11280;
constexpr float tourHeight = 8340;

constexpr int escapeKey = 27;

}  // namespace

frmPopHelp::frmPopHelp()
    : Form("frmPopHelp", "Tarnel"),
      browsePWindow_("browsePWindow"),
      smtAction_("smtAction", SmartUI::Look::bar),
      SpellEditor1_("SpellEditor1"),
      resizer_("SSResizer1", 0) {
  makeItems();
  browsePWindow_.setAccessibleName("Help topic");
  for (Control* control : std::initializer_list<Control*>{&browsePWindow_, &smtAction_, &SpellEditor1_, &resizer_})
    addControl(*control);
  Move(firstPlace.left, firstPlace.top, firstPlace.width, firstPlace.height);
  smtAction_.Move(0, ScaleHeight() - barHeight, ScaleWidth(), barHeight);
  resizer_.attach(*this);
  resizer_.anchor(smtAction_, {.left = true, .top = false, .right = true, .bottom = true});

  connections_.push_back(smtAction_.Click.connect([this](SmartItem& item) { smtAction_Click(item); }));
  connections_.push_back(browsePWindow_.navigated.connect(
      [this] { smtAction_.Items().Item("BACK").setVisible(browsePWindow_.canGoBack()); }));
  connections_.push_back(browsePWindow_.linkRefused.connect([](const std::string& url) {
    tellUser("This link leads to no page of the help folder and is not followed:\r\n" + url);
  }));
}

void frmPopHelp::makeItems() {
  SmartItems& items = smtAction_.Items();
  SmartItem& noShow = items.Add(0, "NOSHOW", "Show Tour when Application starts", SmartItemType::checkBox);
  noShow.setToolTipText("Show/don't the Tour when application opens");
  noShow.setVisible(false);
  items.Add(0, "S1", "", SmartItemType::separator).setVisible(false);
  SmartItems& printing = items.Add(0, "PRINT", "Printing ", SmartItemType::menu).SubItems();
  printing.Add(0, "PRINT", "Print", SmartItemType::menuEntry, "print");
  printing.Add(0, "PRINTPREVIEW", "Print Preview", SmartItemType::menuEntry, "preview");
  items.Add(0, "", "", SmartItemType::separator);
  items.Add(0, "BACK", "Back", SmartItemType::button).setToolTipText("Go back a Help Topic");
  items.Item("BACK").setVisible(false);
  items.Add(0, "", "", SmartItemType::separator);
  items.Add(0, "CLOSE", "Close Window", SmartItemType::button);
}

bool frmPopHelp::setHelpPrinterSettings(const std::string& helpstring) {
  return standardHandler<bool>(modules::frmPopHelp, "setHelpPrinterSettings", [&](bool& done) {
    helpPrintText_ = helpstring;
    done = true;
  });
}

void frmPopHelp::Setup(std::int32_t HelpNum) {
  standardHandler(modules::frmPopHelp, "Setup", [&] {
    browsePWindow_.setFolder(helpFolder());
    browsePWindow_.setVisible(true);
    showTopic(HelpNum);
    std::string url = browsePWindow_.LocationURL();
    setHelpPage(url);
  });
}

void frmPopHelp::showTopic(std::int32_t HelpNum) {
  const HelpTopic* topic = findHelpTopic(HelpNum);
  if (!topic) return;
  const std::filesystem::path file = helpFolder() / topic->file;
  browsePWindow_.Navigate2(file);
  setCaption(topic->title);
  helpPagePath_ = file;
  if (HelpNum != helpNumber::tour) return;
  Move(Left(), Top(), tourWidth, tourHeight);
  SmartItem& noShow = smtAction_.Items().Item("NOSHOW");
  noShow.setChecked(false);
  noShow.setVisible(true);
  smtAction_.Items().Item("S1").setVisible(true);
  helpTourMark_ = helpNumber::tour;
}

void frmPopHelp::Form_Resize() {
  ignoringFailures(
      [this] { browsePWindow_.Move(0, 0, Width() - 120, Height() - (smtAction_.Height() + frameHeight)); });
}

void frmPopHelp::Form_KeyDown(int& keyCode) {
  standardHandler(modules::frmPopHelp, "Form_KeyDown", [&] {
    if (keyCode != escapeKey) return;
    closePop();
    keyCode = 0;
  });
}

void frmPopHelp::Form_QueryUnload() {
  standardHandler(modules::frmPopHelp, "Form_QueryUnload", [this] { closePop(); });
}

void frmPopHelp::smtAction_Click(const SmartItem& item) {
  standardHandler(modules::frmPopHelp, "smtAction_Click", [&] {
    const std::string& key = item.Key();
    if (key == "CLOSE") closePop();
    if (key == "PRINT") run(HelpPrintJob::Kind::print);
    if (key == "PRINTPREVIEW") run(HelpPrintJob::Kind::preview);
    if (key == "BACK") ignoringFailures([this] { browsePWindow_.GoBack(); });
  });
}

void frmPopHelp::run(HelpPrintJob::Kind kind) {
  HelpPrintJob(kind, {browsePWindow_, SpellEditor1_, printSettings_, helpPagePath_, [this] { MakeHelpHTML(); }}).run();
}

bool frmPopHelp::MakeHelpHTML() {
  return standardHandler<bool>(modules::frmPopHelp, "MakeHelpHTML", [this](bool& done) {
    printSettings_.read(CStringBag(helpPrintText_));
    for (std::string* text : {&printSettings_.FLEFT, &printSettings_.FRIGHT}) {
      platform().desktop.doEvents();
      *text = footerText(*text, platform().locale, platform().clock.now());
    }
    done = true;
  });
}

}  // namespace tarnel
