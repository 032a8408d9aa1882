#include "FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>

#include "KeyCodes.h"
#include "QtText.h"
#include "ScheduleGroup.h"
#include "Twips.h"

namespace tarnel::qt {
namespace {

QSize innerSize(const Form& form) { return {pixels(form.ScaleWidth()), pixels(form.ScaleHeight())}; }
QPoint corner(const Form& form) { return {pixels(form.Left()), pixels(form.Top())}; }

}  // namespace

FormWindow::FormWindow(Form& form, const ViewFactory& views, QWidget* parent)
    : QWidget(parent, parent ? Qt::Dialog : Qt::Window),
      form_(form),
      factory_(views),
      schedules_(std::make_shared<ScheduleGroup>()) {
  setWindowModality(Qt::ApplicationModal);
  setAttribute(Qt::WA_QuitOnClose, false);  // the end of a form is none of its host's
  setFont(formFont());
  setWindowTitle(text(form.Caption()));
  setObjectName(text(form.Name()));
  addViews(nullptr, *this);
  connections_.push_back(form.placementChanged.connect([this] { followForm(); }));
  connections_.push_back(form.captionChanged.connect([this] { setWindowTitle(text(form_.Caption())); }));
  followForm();
  tabStopsChanged();
  qApp->installEventFilter(this);
}

FormWindow::~FormWindow() { qApp->removeEventFilter(this); }

QWidget* FormWindow::view(const Control& control) const {
  const auto found = viewOf_.find(&control);
  return found == viewOf_.end() ? nullptr : found->second;
}

void FormWindow::addViews(const Control* container, QWidget& parent) {
  for (Control* control : form_.controls())
    if (control->container() == container)
      if (QWidget* made = factory_.make(*control, *this, &parent)) addView(*control, *made);
}

void FormWindow::showOrHide(const Control& control) {
  QWidget& view = *viewOf_.at(&control);
  if (control.Visible() && filled_.insert(&control).second) addViews(&control, view);
  view.setVisible(control.Visible());
}

void FormWindow::addView(Control& control, QWidget& made) {
  QWidget* view = &made;
  viewOf_[&control] = view;
  view->setObjectName(text(control.fullName()));
  // What can't be gone to, a label above all, is called by what it shows.
  if (view->focusPolicy() != Qt::NoFocus) view->setAccessibleName(text(control.accessibleName()));
  if (!control.ToolTipText().empty()) view->setToolTip(qt::toolTip(text(control.ToolTipText())));
  const auto place = [view, &control] { view->setGeometry(pixelRect(control.placement())); };
  const auto show = [this, &control] { showOrHide(control); };
  const auto enable = [view, &control] { view->setEnabled(control.Enabled()); };
  place(), show(), enable();
  connections_.push_back(control.placementChanged.connect(place));
  connections_.push_back(control.visibleChanged.connect([this, show] { show(), tabStopsChanged(); }));
  connections_.push_back(control.enabledChanged.connect(enable));
}

void FormWindow::present() {
  followForm();
  comeIntoSight();
  show();
  raise();
  activateWindow();
  placed_ = true;
  tellForm();
  if (!focusWidget()) focusNextChild();
}

void FormWindow::comeIntoSight() {
  const QRect wanted(corner(form_), innerSize(form_));
  constexpr int enough = 60;  // pixels of the title's line that must be in reach
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry().intersected(QRect(wanted.topLeft(), QSize(wanted.width(), 30)));
    if (seen.width() >= enough && seen.height() >= 10) return;
  }
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  move(screen.center() - QPoint(wanted.width() / 2, wanted.height() / 2));
}

void FormWindow::followForm() {
  if (size() != innerSize(form_)) resize(innerSize(form_));
  if (pos() != corner(form_)) move(corner(form_));
}

void FormWindow::tellForm() {
  if (!placed_ || isMinimized()) return;
  // A length that the window shows already stays as it is: pixels are coarser than twips.
  const QPoint at = pos();
  const float left = at.x() == corner(form_).x() ? form_.Left() : twips(at.x());
  const float top = at.y() == corner(form_).y() ? form_.Top() : twips(at.y());
  const QSize inside = innerSize(form_);
  const float wide = width() == inside.width() ? form_.Width() : twips(width()) + Form::frameWidth;
  const float high = height() == inside.height() ? form_.Height() : twips(height()) + Form::frameHeight;
  act([&] { form_.Move(left, top, wide, high); });
}

void FormWindow::resizeEvent(QResizeEvent*) { tellForm(); }
void FormWindow::moveEvent(QMoveEvent*) { tellForm(); }

void FormWindow::closeEvent(QCloseEvent* event) {
  act([this] { form_.unload(); });
  event->setAccepted(!form_.Visible());  // a refusal would also keep the host from ending
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  // A key that nobody wants climbs up from the focus; the form sees it once, at its start.
  if (widget->window() != this || (focusWidget() && focusWidget() != widget)) return false;
  return formTakesKey(static_cast<QKeyEvent&>(*event));
}

bool FormWindow::formTakesKey(QKeyEvent& event) {
  int code = keyCodeOf(event);
  if (code == 0) return false;
  act([&] { form_.keyDown(code); });
  return code == 0;
}

void FormWindow::act(const std::function<void()>& gesture) {
  if (broken_) return;
  try {
    gesture();
  } catch (...) {
    failure_ = std::current_exception();
    broken_ = true;
    failed();
  }
}

void FormWindow::tabStopsChanged() {
  QList<QWidget*> stops;
  addTabStops(nullptr, stops);
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void FormWindow::addTabStops(const Control* container, QList<QWidget*>& stops) const {
  for (const Control* control : form_.controls()) {
    if (control->container() != container) continue;
    addTabStops(control, stops);
    // A container's own widgets, a splitter's bar, come after what it holds.
    if (QWidget* top = view(*control)) addOwnTabStops(*top, stops);
  }
}

void FormWindow::addOwnTabStops(QWidget& top, QList<QWidget*>& stops) const {
  if (top.window() != this) return;
  if (top.focusPolicy() & Qt::TabFocus) stops += &top;
  const auto isView = [this](const QWidget* widget) {
    return std::ranges::any_of(viewOf_, [widget](const auto& each) { return each.second == widget; });
  };
  for (QObject* child : top.children())
    if (auto* own = qobject_cast<QWidget*>(child); own && !isView(own)) addOwnTabStops(*own, stops);
}

}  // namespace tarnel::qt
