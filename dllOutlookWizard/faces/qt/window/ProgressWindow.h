#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace tarnel::qt {

// "n of N" with a bar. Modal, above everything. What the user does while it is shown is ignored.
class ProgressWindow : public QWidget {
 public:
  explicit ProgressWindow(QWidget* parent);

  void show(int done, int total);
  QString shownText() const;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QLabel* text_;
  QProgressBar* bar_;
};

// Decides when a run's progress is seen.
class Progress {
 public:
  ~Progress() { end(); }

  // Cheap to call for each of many steps.
  void step(int done, int total, QWidget* parent);
  void end();
  ProgressWindow* window() const { return window_; }

 private:
  void begin();
  void showStep(int done, int total, QWidget* parent);

  QPointer<ProgressWindow> window_;
  QPointer<QObject> run_;  // goes when control comes back to the event loop, and ends the run with it
  QElapsedTimer sinceStart_;
  qint64 shownAt_ = 0;
};

}  // namespace tarnel::qt
