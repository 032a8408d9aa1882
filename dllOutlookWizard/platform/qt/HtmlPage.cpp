#include "HtmlPage.h"

#include <QImage>
#include <QStringDecoder>
#include <algorithm>

namespace tarnel::qt {
namespace fs = std::filesystem;

QString decodedHtml(const std::string& bytes) {
  const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QStringDecoder decoder = QStringDecoder::decoderForHtml(view);
  if (!decoder.isValid()) decoder = QStringDecoder(QStringDecoder::Utf8);
  return decoder.decode(view);
}

QVariant pagePicture(const QUrl& name, const fs::path& folder) {
  if (!name.isRelative() && !name.isLocalFile()) return {};
  std::error_code error;
  const fs::path home = fs::canonical(folder, error);
  if (error) return {};
  const QString path = name.isLocalFile() ? name.toLocalFile() : name.path();
  const fs::path file = fs::canonical(home / fs::path(path.toStdString()), error);
  if (error || std::mismatch(home.begin(), home.end(), file.begin(), file.end()).first != home.end()) return {};
  QImage image(QString::fromStdString(file.string()));
  if (file.stem().string().ends_with("@2x")) image.setDevicePixelRatio(2);
  return image.isNull() ? QVariant() : QVariant(image);
}

}  // namespace tarnel::qt
