#include "QtText.h"

#include <QApplication>

namespace tarnel::qt {
namespace {

constexpr int fontPixels = 12;
constexpr qsizetype longestLine = 500;  // characters; more than the widest list shows
constexpr qsizetype longestTip = 1500;

}  // namespace

QFont formFont() {
  QFont font = QApplication::font();
  font.setPixelSize(fontPixels);
  return font;
}

QString oneLine(const std::string& utf8) {
  QString line = text(utf8.size() > 4 * longestLine ? utf8.substr(0, 4 * longestLine) : utf8).left(longestLine);
  line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
  for (QChar& character : line)
    if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
        character == QChar::ParagraphSeparator)
      character = u' ';
  return line;
}

QString rowCaption(const std::string& utf8) { return oneLine(utf8).replace(QStringLiteral("&&"), QStringLiteral("&")); }

QString toolTip(const QString& plain) {
  if (plain.isEmpty()) return {};
  QString shown = plain.size() > longestTip ? plain.left(longestTip) + QChar(0x2026) : plain;
  shown = shown.toHtmlEscaped().replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return QStringLiteral("<qt>") + shown.replace(u'\n', QStringLiteral("<br>")) + QStringLiteral("</qt>");
}

}  // namespace tarnel::qt
