#include "PaperOutput.h"

#include <QFileDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "Failure.h"
#include "Paper.h"
#include "PdfOutput.h"
#include "QtText.h"
#include "StandardPointer.h"

namespace tarnel::qt {
namespace {

constexpr QSize previewSize(820, 900);

QString nameOf(const Document& document) { return text(document.file.stem().string()); }

}  // namespace

void PaperOutput::print(const Document& document, const std::string& jobName) {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return printToPdf(document, text(jobName));
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(nameOf(document));
  QPrintDialog dialog(&printer, window());
  dialog.setWindowTitle(text(jobName));
  {
    const StandardPointer standard;
    if (dialog.exec() != QDialog::Accepted) return;
  }
  if (!paintOnPaper(document, printer))
    throw Failure(failure::pathAccess, "The printer \"" + printer.printerName().toStdString() +
                                           "\" takes no document. Is it on, and is it still set up?");
}

void PaperOutput::printToPdf(const Document& document, const QString& jobName) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QString file;
  {
    const StandardPointer standard;
    file = QFileDialog::getSaveFileName(window(), QObject::tr("%1 to a PDF file (no printer is set up)").arg(jobName),
                                        folder + u'/' + nameOf(document) + QStringLiteral(".pdf"),
                                        QObject::tr("PDF files (*.pdf)"));
  }
  if (!file.isEmpty()) writePdf(document, file.toStdString());
}

void PaperOutput::preview(const Document& document) {
  const StandardPointer standard;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(nameOf(document));
  if (!printer.isValid() || printer.printerName().isEmpty()) printer.setPageSize(usualPaper());
  QPrintPreviewDialog dialog(&printer, window());
  dialog.setWindowTitle(QObject::tr("Print Preview"));
  // The window asks again for each new paper; it must not be covered by a bar each time.
  Document quiet = document;
  quiet.progress = nullptr;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                   [&quiet](QPrinter* paper) { paintOnPaper(quiet, *paper); });
  dialog.resize(previewSize);
  dialog.exec();
}

}  // namespace tarnel::qt
