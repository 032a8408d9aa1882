#pragma once

#include <QDialog>

#include "Desktop.h"

namespace tarnel::qt {

// All facts of a failure, one a line.
QString factsOf(const FailureReport& report);

// Tells of a failure so that its reader can pass it on.
class ReportDialog : public QDialog {
 public:
  ReportDialog(const FailureReport& report, QWidget* parent);
};

}  // namespace tarnel::qt
