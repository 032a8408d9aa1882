#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "DocumentOutput.h"

namespace tarnel::qt {

// Writes the document to a PDF file; an existing file is replaced only by a whole one. Failure 75 naming the file.
void writePdf(const Document& document, const std::filesystem::path& file);

// Prints into PDF files of a folder, where there is neither screen nor printer. Each job makes a file of its own, named
// after the page; a preview is one, too.
class PdfOutput : public DocumentOutput {
 public:
  // `told` hears of each file, with "PrintDocument" or "PreviewDocument".
  using Told = std::function<void(const std::string& operation, const std::filesystem::path& file)>;

  // The folder must be there when the first job comes.
  PdfOutput(std::filesystem::path folder, Told told);
  ~PdfOutput() override;

  void print(const Document& document, const std::string& jobName) override;
  void preview(const Document& document) override;

 private:
  struct Screenless;
  void write(const Document& document, const std::string& operation);

  std::filesystem::path folder_;
  Told told_;
  std::unique_ptr<Screenless> screenless_;  // from the first job on
};

}  // namespace tarnel::qt
