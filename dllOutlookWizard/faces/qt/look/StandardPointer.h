#pragma once

#include <QApplication>

namespace tarnel::qt {

// A box that asks for an answer is not pointed at with an hourglass.
class StandardPointer {
 public:
  StandardPointer() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~StandardPointer() { QApplication::restoreOverrideCursor(); }
  StandardPointer(const StandardPointer&) = delete;
  StandardPointer& operator=(const StandardPointer&) = delete;
};

}  // namespace tarnel::qt
