#include "QtDesktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>
#include <algorithm>
#include <vector>

#include "Form.h"
#include "FormWindow.h"
#include "ProgressWindow.h"
#include "QtText.h"
#include "ReportDialog.h"
#include "StandardPointer.h"

namespace tarnel::qt {
namespace {

constexpr int narrowestMessage = 340;  // pixels

QMessageBox::Icon iconOf(const Message& message) {
  switch (message.icon) {
    case MessageIcon::critical:
      return QMessageBox::Critical;
    case MessageIcon::information:
      return QMessageBox::Information;
    case MessageIcon::none:
      return message.buttons == MessageButtons::yesNo ? QMessageBox::Question : QMessageBox::NoIcon;
  }
  return QMessageBox::NoIcon;
}

// Wide enough for its title, without the style's icons on the buttons.
int ask(QMessageBox& box) {
  auto& grid = dynamic_cast<QGridLayout&>(*box.layout());
  grid.addItem(new QSpacerItem(narrowestMessage, 0), grid.rowCount(), 0, 1, grid.columnCount());
  for (QAbstractButton* button : box.buttons()) button->setIcon({});
  return box.exec();
}

// A window among those on the screen, for as long as it is one.
class Listed {
 public:
  Listed(std::vector<FormWindow*>& windows, FormWindow& window) : windows_(windows), window_(window) {
    windows.push_back(&window);
  }
  ~Listed() { std::erase(windows_, &window_); }
  Listed(const Listed&) = delete;
  Listed& operator=(const Listed&) = delete;

 private:
  std::vector<FormWindow*>& windows_;
  FormWindow& window_;
};

}  // namespace

struct QtDesktop::Inside {
  ViewFactory views;
  std::vector<FormWindow*> windows;  // the lowest first
  MousePointer pointer = MousePointer::standard;
  Progress progress;

  QWidget* parent() const { return windows.empty() ? QApplication::activeWindow() : windows.back(); }
};

QtDesktop::QtDesktop() : QtDesktop(ViewFactory()) {}
QtDesktop::QtDesktop(const ViewFactory& views) : inside_(std::make_unique<Inside>()) { inside_->views = views; }
QtDesktop::~QtDesktop() { setMousePointer(MousePointer::standard); }

MessageAnswer QtDesktop::message(const Message& message) {
  inside_->progress.end();
  const StandardPointer standard;
  QMessageBox box(inside_->parent());
  box.setIcon(iconOf(message));
  box.setWindowTitle(text(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(text(message.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  if (message.buttons == MessageButtons::ok) {
    box.setStandardButtons(QMessageBox::Ok);
    ask(box);
    return MessageAnswer::ok;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return ask(box) == QMessageBox::Yes ? MessageAnswer::yes : MessageAnswer::no;
}

void QtDesktop::report(const FailureReport& report) {
  inside_->progress.end();
  const StandardPointer standard;
  ReportDialog(report, inside_->parent()).exec();
}

void QtDesktop::doEvents() { QApplication::processEvents(); }

void QtDesktop::runModal(Form& form) {
  inside_->progress.end();
  if (!form.Visible()) return;
  QEventLoop loop;
  FormWindow window(form, inside_->views, inside_->parent());
  const Connection onHidden = form.visibleChanged.connect([&] { loop.quit(); });
  const Connection onFailure = window.failed.connect([&] { loop.quit(); });
  // Also where the window fails to come up: what is told of that is no child of one that has gone.
  const Listed listed(inside_->windows, window);
  window.present();
  // Without a failure only the end of the whole program ends the loop of a form that is still open.
  if (form.Visible() && !window.hasFailed()) loop.exec();
  if (form.Visible() && !window.hasFailed()) form.unload();
  if (const std::exception_ptr failure = window.takeFailure()) std::rethrow_exception(failure);
}

void QtDesktop::setMousePointer(MousePointer pointer) {
  if (pointer == inside_->pointer) return;
  inside_->pointer = pointer;
  if (pointer == MousePointer::hourglass)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

MousePointer QtDesktop::mousePointer() const { return inside_->pointer; }

void QtDesktop::progress(int done, int total) { inside_->progress.step(done, total, inside_->parent()); }

}  // namespace tarnel::qt
