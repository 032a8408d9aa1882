#include "DropDateView.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

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

void DropDateView::resizeEvent(QResizeEvent*) {
  int left = std::min(width(), edit_->sizeHint().width());
  edit_->setGeometry(0, 0, left, height());
  for (QPushButton* button : {before_, today_, after_}) {
    const int caption = button->fontMetrics().horizontalAdvance(button->text());
    const int wide = button == today_ ? caption + 2 * besideToday : stepWidth;
    const bool fits = left + buttonGap + wide <= width();
    button->setVisible(fits);
    if (!fits) continue;
    button->setGeometry(left + buttonGap, 0, wide, height());
    left += buttonGap + wide;
  }
}

}  // namespace tarnel::qt
