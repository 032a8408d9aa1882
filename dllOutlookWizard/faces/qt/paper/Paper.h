#pragma once

#include <QPagedPaintDevice>

#include "DocumentOutput.h"

namespace tarnel::qt {

// What stays free at two opposite edges of a paper that is `length` twips long. Margins that nobody can print or that
// leave no room for text are replaced.
struct EdgePair {
  int first;
  int second;
};
EdgePair saneMargins(int first, int second, int length);

// Lays the document out on the device's paper and paints all its pages, the footer inside the margins at the foot of
// each. False when the device can't be painted on.
bool paintOnPaper(const Document& document, QPagedPaintDevice& device);

// A4, or Letter where that is usual.
QPageSize usualPaper();

}  // namespace tarnel::qt
