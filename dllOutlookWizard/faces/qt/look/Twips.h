#pragma once

#include <QRect>
#include <cmath>

#include "Control.h"

namespace tarnel::qt {

// 1440 twips to an inch, 96 logical pixels to an inch; Qt maps logical pixels to those of the screen.
inline constexpr float twipsPerPixel = 15;

inline int pixels(float twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }
constexpr float twips(int pixels) { return static_cast<float>(pixels) * twipsPerPixel; }

// Edges are rounded, not lengths, so that neighbours leave no gap between them.
inline QRect pixelRect(const Placement& placement) {
  const QPoint topLeft(pixels(placement.left), pixels(placement.top));
  const QPoint end(pixels(placement.left + placement.width), pixels(placement.top + placement.height));
  return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

}  // namespace tarnel::qt
