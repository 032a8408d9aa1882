#include "HelpPrintJob.h"

#include "Conversions.h"
#include "HelpFolder.h"
#include "Hourglass.h"
#include "Platform.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

constexpr float twipsPerCentimetre = 567;

constexpr const char* printQuestion = "Print this help topic? It may take a moment or two to prepare.";
constexpr const char* previewQuestion = "Print Preview this help topic? It may take a moment or two to prepare.";

// Hosts write their own version into a footer; what prints is this one's.
void replaceProduct(std::string& text) {
  if (text.starts_with("Tarnel -")) text = productTitle;
}

std::int32_t toTwips(float centimetres) { return roundToLong(static_cast<double>(centimetres * twipsPerCentimetre)); }

void letEventsRun() { platform().desktop.doEvents(); }

}  // namespace

void HelpPrintJob::run() {
  if (!askUser(prints() ? printQuestion : previewQuestion)) return;
  const Hourglass hourglass;
  letEventsRun();
  parts_.MakeHelpHTML();
  letEventsRun();
  setPage();
  letEventsRun();
  if (prints()) findPage();
  setStates();
  load();
  letEventsRun();
  put();
}

void HelpPrintJob::setPage() {
  HelpPrintSettings& settings = parts_.settings;
  if (prints()) {
    replaceProduct(settings.FLEFT);
    replaceProduct(settings.FRIGHT);
  }
  const std::string footer = footerTemplate(settings.FLEFT, settings.FRIGHT);
  parts_.editor.SetPageText({.firstHeader = "",
                             .firstFooter = footer,
                             .header = "",
                             .footer = footer,
                             .watermark = "",
                             .watermarkColor = 0,
                             .font = settings.FFONT,
                             .size = settings.FSIZE});
  parts_.editor.SetPageMargins(toTwips(settings.LEFT), toTwips(settings.RIGHT), toTwips(settings.TOP),
                               toTwips(settings.BOTTOM));
}

// The page that the user reached through a link is the one that is meant.
void HelpPrintJob::findPage() {
  const std::string name = parts_.browser.LocationName();
  if (!prints() || name != WebBrowser::noPage) parts_.helpPagePath = helpFolder() / name;
  letEventsRun();
}

void HelpPrintJob::setStates() {
  SpellEditor& editor = parts_.editor;
  editor.setEditorState1(false);
  editor.setEditorState2(false);
  editor.setEditorState3(true);
  editor.setEditorState4("");
  editor.setEditorState5(false);
  if (!prints()) findPage();
  editor.setEditorState6(true);
}

void HelpPrintJob::load() {
  parts_.editor.setHtmlimgdir(helpFolder());
  parts_.editor.LoadHtmlFile(parts_.helpPagePath);
  parts_.editor.AfterLoad();
}

void HelpPrintJob::put() {
  SpellEditor& editor = parts_.editor;
  const Connection onProgress =
      editor.progress.connect([](int done, int total) { platform().desktop.progress(done, total); });
  if (prints())
    editor.PrintDocument("Print");
  else
    editor.PreviewDocument();
  editor.AfterOutput();
  editor.setEditorState5(false);
  editor.FinishDocument();
  editor.setEditorState4("");
}

}  // namespace tarnel
