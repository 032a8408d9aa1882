#include "HtmlPage.h"

#include <QImage>
#include <QStringDecoder>
#include <algorithm>

#include "Failure.h"
#include "HtmlFile.h"

namespace tarnel::qt {
namespace fs = std::filesystem;
namespace {

// The file that a page names; empty when it isn't there, or not in the folder or below it.
fs::path fileBelow(const fs::path& folder, const QUrl& name) {
  if (!name.isRelative() && !name.isLocalFile()) return {};
  std::error_code error;
  const fs::path home = fs::canonical(folder, error);
  if (error) return {};
  const QString path = name.isLocalFile() ? name.toLocalFile() : name.path();
  fs::path file = fs::canonical(home / fs::path(path.toStdString()), error);
  if (error || std::mismatch(home.begin(), home.end(), file.begin(), file.end()).first != home.end()) return {};
  return file;
}

}  // namespace

QString decodedHtml(const std::string& bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder decoder = QStringDecoder::decoderForHtml(view);
  if (!decoder.isValid()) decoder = QStringDecoder(QStringDecoder::Utf8);
  return decoder.decode(view);
}

QVariant pagePicture(const QUrl& name, const fs::path& folder) {
  const fs::path file = fileBelow(folder, name);
  if (file.empty()) return {};
  QImage image(QString::fromStdString(file.string()));
  if (file.stem().string().ends_with("@2x")) image.setDevicePixelRatio(2);
  return image.isNull() ? QVariant() : QVariant(image);
}

QVariant pageStyle(const QUrl& name, const fs::path& folder) {
  const fs::path file = fileBelow(folder, name);
  if (file.empty()) return {};
  try {
    return QString::fromStdString(readHtmlFile(file));
  } catch (const Failure&) {
    return {};  // the page is read without it
  }
}

}  // namespace tarnel::qt
