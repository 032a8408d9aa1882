#include "PdfOutput.h"

#include <QPdfWriter>
#include <QSaveFile>
#include <array>

#include "Failure.h"
#include "Paper.h"
#include "QtApplication.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {

constexpr int dotsPerInch = 1200;

std::filesystem::path freeName(const std::filesystem::path& folder, const std::string& stem) {
  std::filesystem::path file = folder / (stem + ".pdf");
  std::error_code ignored;
  for (int number = 2; std::filesystem::exists(file, ignored); ++number)
    file = folder / (stem + "-" + std::to_string(number) + ".pdf");
  return file;
}

}  // namespace

void writePdf(const Document& document, const std::filesystem::path& file) {
  QSaveFile out(text(file.string()));
  bool written = out.open(QIODevice::WriteOnly);
  if (written) {
    QPdfWriter writer(&out);
    writer.setTitle(text(document.file.stem().string()));
    writer.setCreator(QStringLiteral("Tarnel"));
    writer.setResolution(dotsPerInch);
    writer.setPageSize(usualPaper());
    written = paintOnPaper(document, writer);
  }
  if (!written || !out.commit())
    throw Failure(failure::pathAccess, "The file \"" + file.string() +
                                           "\" can't be written: " + out.errorString().toStdString() +
                                           ". Is there room, and may you write there?");
}

// Fonts and pictures need an application, though no screen.
struct PdfOutput::Screenless {
  std::array<char, 7> name{"tarnel"};
  std::array<char*, 2> arguments{name.data(), nullptr};
  int count = 1;
  QtApplication application{QtApplication::WithoutScreen{}, count, arguments.data()};
};

PdfOutput::PdfOutput(std::filesystem::path folder, Told told) : folder_(std::move(folder)), told_(std::move(told)) {}
PdfOutput::~PdfOutput() = default;

void PdfOutput::print(const Document& document, const std::string&) { write(document, "PrintDocument"); }
void PdfOutput::preview(const Document& document) { write(document, "PreviewDocument"); }

void PdfOutput::write(const Document& document, const std::string& operation) {
  if (!screenless_) screenless_ = std::make_unique<Screenless>();
  const std::filesystem::path file = freeName(folder_, document.file.stem().string());
  writePdf(document, file);
  if (told_) told_(operation, file);
}

}  // namespace tarnel::qt
