#include "TabsView.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>

#include "Colors.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int padding = 14;
constexpr int underline = 2;
}  // namespace

TabsView::TabsView(SftTabs& control, ViewSite& site, QWidget* parent)
    : QTabBar(parent), control_(control), site_(site) {
  setExpanding(false);
  setDrawBase(false);
  setUsesScrollButtons(false);
  for (auto* scroll : findChildren<QToolButton*>()) scroll->setFocusPolicy(Qt::NoFocus);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  for (std::size_t i = 0; i < control.Count(); ++i) addTab(text(control.Caption(i)));
  connections_.push_back(control.tabsChanged.connect([this] { showState(); }));
  connect(this, &QTabBar::currentChanged, this, [this](int index) { chosen(index); });
  showState();
}

void TabsView::showState() {
  const QSignalBlocker silent(this);
  // Enabled ones first: QTabBar moves on by itself when the current tab goes out.
  for (std::size_t i = 0; i < control_.Count(); ++i) setTabEnabled(static_cast<int>(i), control_.TabEnabled(i));
  setCurrentIndex(static_cast<int>(control_.Current()));
  update();
}

void TabsView::chosen(int index) {
  if (index < 0) return;
  setFocus(Qt::TabFocusReason);  // before what has it is hidden
  site_.act([this, index] { control_.switchTo(static_cast<std::size_t>(index)); });
  showState();
}

QSize TabsView::tabSizeHint(int index) const {
  return {fontMetrics().size(Qt::TextShowMnemonic, tabText(index)).width() + 2 * padding, height()};
}

void TabsView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(0, height() - 1, width(), 1, lineColor(palette()));
  for (int i = 0; i < count(); ++i) paintTab(painter, i);
}

void TabsView::paintTab(QPainter& painter, int index) const {
  const QRect tab = tabRect(index).intersected(rect());
  const bool current = index == currentIndex();
  const bool enabled = isTabEnabled(index);
  if (current) {
    painter.fillRect(tab, palette().color(QPalette::Base));
    painter.fillRect(tab.left(), tab.bottom() + 1 - underline, tab.width(), underline, accentColor(palette()));
  } else if (enabled && tab.contains(mapFromGlobal(QCursor::pos())) && underMouse()) {
    painter.fillRect(tab, blend(palette().color(QPalette::Window), accentColor(palette()), 0.10));
  }
  const int flags = static_cast<int>(Qt::AlignCenter) | Qt::TextShowMnemonic | Qt::TextSingleLine;
  painter.setPen(palette().color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
  painter.drawText(tab, flags, tabText(index));
  if (current && hasFocus()) {
    painter.setPen(QPen(accentColor(palette()), 1));
    painter.drawRect(tab.adjusted(2, 2, -3, -4));
  }
}

}  // namespace tarnel::qt
