#include "DropDateView.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>
#include <array>
#include <numeric>

#include "QtDate.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {
constexpr int stepWidth = 16;  // pixels
constexpr int besideToday = 6;
constexpr int buttonGap = 2;
}  // namespace

DropDateView::DropDateView(ctDropDate& control, ViewSite& site, QWidget* parent)
    : QWidget(parent), control_(control), site_(site), edit_(new QDateEdit(this)) {
  edit_->setCalendarPopup(true);
  edit_->calendarWidget()->setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
  edit_->calendarWidget()->setFirstDayOfWeek(firstDayOfWeek());
  edit_->setKeyboardTracking(false);
  edit_->setFont(formFont());
  edit_->setDisplayFormat(numericDateFormat());
  edit_->setMaximumDate(toQDate(lastDayShown()));
  edit_->setAccessibleName(text(control.accessibleName()));
  before_ = addButton(QStringLiteral("\u2039"), tr("Day before"));
  today_ = addButton(tr("Today"), tr("Today"));
  after_ = addButton(QStringLiteral("\u203A"), tr("Day after"));
  connect(edit_, &QDateEdit::dateChanged, this, [this](QDate date) { choose(toDate(date)); });
  connect(before_, &QPushButton::clicked, this, [this] { choose({control_.Date().days - 1}); });
  connect(today_, &QPushButton::clicked, this, [this] { choose(toDate(QDate::currentDate())); });
  connect(after_, &QPushButton::clicked, this, [this] { choose({control_.Date().days + 1}); });
  onChange_ = control.Change.connect([this] { showState(); });
  showState();
}

QPushButton* DropDateView::addButton(const QString& caption, const QString& name) {
  auto* button = new QPushButton(caption, this);
  button->setFont(formFont());
  button->setToolTip(name);
  button->setAccessibleName(name);
  return button;
}

void DropDateView::choose(Date date) {
  site_.act([this, date] { control_.choose(date); });
  showState();
}

void DropDateView::showState() {
  const QSignalBlocker silent(edit_);
  edit_->setDate(toQDate(control_.Date()));
}

// The buttons keep their room: where it is narrow, the day can be read off the schedule, but not be left without them.
void DropDateView::resizeEvent(QResizeEvent*) {
  const std::array buttons{before_, today_, after_};
  std::array<int, 3> widths{stepWidth, today_->fontMetrics().horizontalAdvance(today_->text()) + 2 * besideToday,
                            stepWidth};
  const int gaps = buttonGap * static_cast<int>(buttons.size());
  int room = std::accumulate(widths.begin(), widths.end(), gaps);
  if (room > width()) {
    widths.fill(std::max((width() - gaps) / static_cast<int>(buttons.size()), 1));
    room = width();
  }
  int left = std::min(width() - room, edit_->sizeHint().width());
  edit_->setGeometry(0, 0, left, height());
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->setGeometry(left + buttonGap, 0, widths[i], height());
    left += buttonGap + widths[i];
  }
}

}  // namespace tarnel::qt
