#include "Colors.h"

#include <algorithm>
#include <cmath>

namespace tarnel::qt {
namespace {

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

struct Shades {
  QColor window, base, text, button, accent, disabled, tipGround;
};

QPalette paletteOf(const Shades& shades) {
  QPalette palette(shades.button, shades.window);
  palette.setColor(QPalette::WindowText, shades.text);
  palette.setColor(QPalette::Text, shades.text);
  palette.setColor(QPalette::ButtonText, shades.text);
  palette.setColor(QPalette::Base, shades.base);
  palette.setColor(QPalette::AlternateBase, blend(shades.base, shades.text, 0.04));
  palette.setColor(QPalette::Highlight, shades.accent);
  palette.setColor(QPalette::HighlightedText, readableOn(shades.accent));
  palette.setColor(QPalette::ToolTipBase, shades.tipGround);
  palette.setColor(QPalette::ToolTipText, readableOn(shades.tipGround));
  palette.setColor(QPalette::PlaceholderText, shades.disabled);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, shades.disabled);
  return palette;
}

}  // namespace

QColor toQColor(Color color) { return {color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF}; }

QColor blend(const QColor& under, const QColor& over, double share) {
  const auto mix = [share](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
  return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor& ground) {
  const QColor black(0x16, 0x18, 0x1B);
  return contrast(ground, black) >= contrast(ground, Qt::white) ? black : QColor(Qt::white);
}

bool isDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QPalette lightPalette() {
  return paletteOf({.window = QColor(0xF3, 0xF4, 0xF6),
                    .base = Qt::white,
                    .text = QColor(0x1B, 0x1F, 0x24),
                    .button = QColor(0xE9, 0xEB, 0xEF),
                    .accent = QColor(0x1F, 0x6F, 0xB5),
                    .disabled = QColor(0x74, 0x7A, 0x82),
                    .tipGround = QColor(0xFF, 0xFB, 0xE6)});
}

QPalette darkPalette() {
  return paletteOf({.window = QColor(0x2A, 0x2D, 0x32),
                    .base = QColor(0x1E, 0x20, 0x24),
                    .text = QColor(0xE8, 0xEA, 0xED),
                    .button = QColor(0x3C, 0x40, 0x47),
                    .accent = QColor(0x4F, 0x9B, 0xDF),
                    .disabled = QColor(0x9A, 0xA0, 0xA8),
                    .tipGround = QColor(0x3D, 0x41, 0x48)});
}

QColor lineColor(const QPalette& palette) {
  return blend(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.22);
}

QColor bandColor(const QPalette& palette) {
  return blend(palette.color(QPalette::Window), palette.color(QPalette::Highlight), isDark(palette) ? 0.28 : 0.16);
}

QColor accentColor(const QPalette& palette) { return palette.color(QPalette::Highlight); }

}  // namespace tarnel::qt
