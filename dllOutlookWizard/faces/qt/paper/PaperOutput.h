#pragma once

#include <QPointer>
#include <QWidget>

#include "DocumentOutput.h"

namespace tarnel::qt {

// Prints through the system's print dialog, into a PDF file where no printer is set up, and previews in a window with
// zoom and paging.
class PaperOutput : public DocumentOutput {
 public:
  // Dialogs are shown above `parent` for as long as that is there.
  explicit PaperOutput(QWidget* parent) : parent_(parent) {}

  void print(const Document& document, const std::string& jobName) override;
  void preview(const Document& document) override;

 private:
  void printToPdf(const Document& document, const QString& jobName);
  QWidget* window() const { return parent_ ? parent_->window() : nullptr; }

  QPointer<QWidget> parent_;
};

}  // namespace tarnel::qt
