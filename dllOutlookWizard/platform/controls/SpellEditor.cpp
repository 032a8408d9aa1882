#include "SpellEditor.h"

#include "Failure.h"
#include "HtmlFile.h"

namespace tarnel {
namespace {

constexpr std::int32_t printerError = 482;  // the run-time's own number

}  // namespace

void SpellEditor::SetPageText(PageText text) {
  pageText_ = std::move(text);
  called("SetPageText");
}

void SpellEditor::SetPageMargins(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t bottom) {
  document_.margins = {left, right, top, bottom};
  called("SetPageMargins");
}

void SpellEditor::setEditorState1(bool on) {
  state_.state1 = on;
  called("EditorState1");
}

void SpellEditor::setEditorState2(bool on) {
  state_.state2 = on;
  called("EditorState2");
}

void SpellEditor::setEditorState3(bool on) {
  state_.state3 = on;
  called("EditorState3");
}

void SpellEditor::setEditorState4(std::string text) {
  state_.state4 = std::move(text);
  called("EditorState4");
}

void SpellEditor::setEditorState5(bool on) {
  state_.state5 = on;
  called("EditorState5");
}

void SpellEditor::setEditorState6(bool on) {
  state_.state6 = on;
  called("EditorState6");
}

void SpellEditor::setHtmlimgdir(std::filesystem::path folder) {
  document_.imageFolder = std::move(folder);
  called("htmlimgdir");
}

void SpellEditor::LoadHtmlFile(const std::filesystem::path& file) {
  loaded_ = false;
  document_.html = readHtmlFile(file);
  document_.file = file;
  loaded_ = true;
  called("LoadHtmlFile");
}

void SpellEditor::AfterLoad() { called("AfterLoad"); }

DocumentOutput& SpellEditor::output() const {
  if (!loaded_) failObjectNotSet();
  if (!output_) throw Failure(printerError, "Nothing can be printed here: this program was started without printing.");
  return *output_;
}

Document SpellEditor::finishedDocument() {
  Document document = document_;
  document.footer = pageText_.footer;
  document.footerFont = pageText_.font;
  document.footerSize = pageText_.size;
  document.progress = [this](int done, int total) { progress(done, total); };
  return document;
}

void SpellEditor::PrintDocument(const std::string& jobName) {
  output().print(finishedDocument(), jobName);
  called("PrintDocument");
}

void SpellEditor::PreviewDocument() {
  output().preview(finishedDocument());
  called("PreviewDocument");
}

void SpellEditor::AfterOutput() { called("AfterOutput"); }

void SpellEditor::FinishDocument() {
  loaded_ = false;
  document_.html.clear();
  called("FinishDocument");
}

}  // namespace tarnel
