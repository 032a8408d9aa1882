#include "ProgressWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr qint64 patience = 400;  // milliseconds before a run shows itself
constexpr qint64 rhythm = 60;     // milliseconds between two pictures of it
}  // namespace

ProgressWindow::ProgressWindow(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
  setWindowModality(Qt::ApplicationModal);
  setWindowTitle(parent ? parent->windowTitle() : QString());
  setFont(formFont());
  setAccessibleName(tr("Progress"));
  bar_->setTextVisible(false);
  bar_->setAccessibleName(tr("Progress"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 16, 20, 18);
  rows->addWidget(text_, 0, Qt::AlignHCenter);
  rows->addWidget(bar_);
  setFixedSize(280, 80);
}

void ProgressWindow::show(int done, int total) {
  text_->setText(tr("%1 of %2").arg(done).arg(total));
  bar_->setRange(0, total);
  bar_->setValue(done);
  QWidget::show();
}

QString ProgressWindow::shownText() const { return text_->text(); }

void ProgressWindow::closeEvent(QCloseEvent* event) { event->ignore(); }

void Progress::begin() {
  sinceStart_.start();
  shownAt_ = 0;
  run_ = new QObject;
  QObject::connect(run_, &QObject::destroyed, qApp, [this] { end(); });
  // Waits for the event loop that is running now, not for those that are turned in between.
  run_->deleteLater();
}

void Progress::step(int done, int total, QWidget* parent) {
  if (done >= total) return end();
  if (!run_) begin();
  const qint64 now = sinceStart_.elapsed();
  if (now < patience || now - shownAt_ < rhythm) return;
  shownAt_ = now;
  showStep(done, total, parent);
}

void Progress::showStep(int done, int total, QWidget* parent) {
  if (!window_) window_ = new ProgressWindow(parent);
  window_->show(done, total);
  QApplication::processEvents();
}

void Progress::end() {
  if (run_) {
    run_->disconnect(qApp);
    delete run_;
  }
  delete window_;
}

}  // namespace tarnel::qt
