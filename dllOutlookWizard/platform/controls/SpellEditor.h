#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "Control.h"
#include "DocumentOutput.h"

namespace tarnel {

// Lays one document out on paper and prints or previews it. It keeps what it is given and hands the finished job to
// the output that a face installed. A job runs from SetPageText to FinishDocument.
class SpellEditor : public Control {
 public:
  // What is printed above and below the text, as templates with the marks of footerParts.
  struct PageText {
    std::string firstHeader;
    std::string firstFooter;
    std::string header;
    std::string footer;
    std::string watermark;
    std::int32_t watermarkColor = 0;
    std::string font;
    std::int32_t size = 0;  // points

    friend bool operator==(const PageText&, const PageText&) = default;
  };
  // Switches of the control that its user sets around a job.
  struct EditorState {
    bool state1 = false;
    bool state2 = false;
    bool state3 = false;
    std::string state4;
    bool state5 = false;
    bool state6 = false;

    friend bool operator==(const EditorState&, const EditorState&) = default;
  };

  explicit SpellEditor(std::string name) : Control(std::move(name)) { setVisible(false); }

  // Whoever shows the form installs it; none takes it away.
  void setOutput(std::shared_ptr<DocumentOutput> output) { output_ = std::move(output); }

  void SetPageText(PageText text);
  void SetPageMargins(std::int32_t left, std::int32_t right, std::int32_t top, std::int32_t bottom);
  void setEditorState1(bool on);
  void setEditorState2(bool on);
  void setEditorState3(bool on);
  void setEditorState4(std::string text);
  void setEditorState5(bool on);
  void setEditorState6(bool on);
  // Relative pictures and style sheets of the document are found here.
  void setHtmlimgdir(std::filesystem::path folder);
  // Failures as readHtmlFile's; the document before is gone then.
  void LoadHtmlFile(const std::filesystem::path& file);
  void AfterLoad();
  // Both fail with 91 without a document and with 482 where nothing to print on is installed.
  void PrintDocument(const std::string& jobName);
  void PreviewDocument();
  void AfterOutput();
  // Lets go of the document.
  void FinishDocument();

  const PageText& pageText() const { return pageText_; }
  const PageMargins& pageMargins() const { return document_.margins; }
  const EditorState& editorState() const { return state_; }
  const std::filesystem::path& htmlimgdir() const { return document_.imageFolder; }

  // Each operation by its name, after it ran, in the order of calling.
  Signal<std::string_view> called;
  // While a job is on its way to paper: `done` of `total`.
  Signal<int, int> progress;

 private:
  DocumentOutput& output() const;
  Document finishedDocument();

  std::shared_ptr<DocumentOutput> output_;
  PageText pageText_;
  EditorState state_;
  Document document_;
  bool loaded_ = false;
};

}  // namespace tarnel
