#pragma once

#include <QColor>
#include <QPalette>

#include "Color.h"

namespace tarnel::qt {

QColor toQColor(Color color);
// `share` of `over`, 0 to 1, laid on `under`.
QColor blend(const QColor& under, const QColor& over, double share);
// Black or white, whichever is easier to see on `ground`.
QColor readableOn(const QColor& ground);
// The contrast of two colours, 1 to 21 (WCAG 2's contrast ratio).
double contrast(const QColor& one, const QColor& other);

bool isDark(const QPalette& palette);
QPalette lightPalette();
QPalette darkPalette();

// Shades of a palette that it has no role for.
QColor lineColor(const QPalette& palette);
QColor bandColor(const QPalette& palette);
QColor accentColor(const QPalette& palette);

}  // namespace tarnel::qt
