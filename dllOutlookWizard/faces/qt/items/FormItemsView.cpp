#include "FormItemsView.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <algorithm>
#include <utility>

#include "Conversions.h"
#include "DropDown.h"
#include "OptionButton.h"
#include "QtText.h"
#include "ScrollBar.h"

namespace tarnel::qt {
namespace {

constexpr int fieldHeight = 24;
constexpr int indent = 12;

QString noteText(const SmartItem& item) {
  return QStringLiteral("<b>%1</b> %2")
      .arg(text(item.Caption()).toHtmlEscaped(), text(textOrEmpty(item.Value())).toHtmlEscaped());
}

QLabel* makeLabel(const QString& caption, QWidget& page) {
  auto* label = new QLabel(caption, &page);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QLabel* makeHeading(const QString& caption, QWidget& page) {
  QLabel* heading = makeLabel(caption, page);
  QFont bold = formFont();
  bold.setBold(true);
  heading->setFont(bold);
  return heading;
}

QLabel* makeNote(const SmartItem& item, QWidget& page) {
  auto* note = new QLabel(noteText(item), &page);
  note->setTextFormat(Qt::RichText);
  note->setWordWrap(true);
  note->setContentsMargins(indent, 0, 0, 2);
  note->setTextInteractionFlags(Qt::NoTextInteraction);
  return note;
}

}  // namespace

FormItemsView::FormItemsView(SmartUI& control, ViewSite& site, QWidget* parent)
    : ItemsPanel(control, site, parent), area_(new QScrollArea(this)) {
  area_->setFrameShape(QFrame::NoFrame);
  area_->setVerticalScrollBar(new ScrollBar(Qt::Vertical, area_));
  area_->setWidgetResizable(true);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setFocusPolicy(Qt::NoFocus);
  build();
}

void FormItemsView::build() {
  const std::string focused = focusedKey();
  rows_.clear();
  label_ = nullptr;
  auto* page = new QWidget;
  auto* rows = new QGridLayout(page);
  rows->setContentsMargins(6, 4, 6, 4);
  rows->setHorizontalSpacing(6);
  rows->setVerticalSpacing(4);
  rows->setColumnStretch(1, 1);
  addTitle(*rows, *page);
  for (SmartItem& item : control().Items()) addRow(*rows, *page, item);
  rows->setRowStretch(rows->rowCount(), 1);
  if (QWidget* old = area_->takeWidget()) {
    old->hide();
    old->deleteLater();
  }
  area_->setWidget(page);
  for (const Row& row : rows_) {
    show(*row.item);
    row.widget->installEventFilter(this);
  }
  keepFocus(focused);
}

void FormItemsView::addTitle(QGridLayout& rows, QWidget& page) const {
  if (!control().title().empty()) rows.addWidget(makeHeading(text(control().title()), page), 0, 0, 1, 2);
}

void FormItemsView::addRow(QGridLayout& rows, QWidget& page, SmartItem& item) {
  if (item.Type() == SmartItemType::dropDown) return addDropDown(rows, page, item);
  QWidget* widget = makeWidget(item, page);
  if (!widget) return;
  const int row = rows.rowCount();
  rows_.push_back({&item, widget, nullptr});
  label_ = item.Type() == SmartItemType::label ? static_cast<QLabel*>(widget) : nullptr;
  rows.addWidget(widget, row, 0, 1, label_ ? 1 : 2);
}

void FormItemsView::addDropDown(QGridLayout& rows, QWidget& page, SmartItem& item) {
  auto* field = new DropDown(control(), item, site(), &page);
  field->setFixedHeight(fieldHeight);
  QLabel* beside = std::exchange(label_, nullptr);
  QLabel* own = nullptr;
  int row = rows.rowCount() - 1;
  if (!beside) {
    row = rows.rowCount();
    own = beside = makeLabel(text(item.Caption()).trimmed(), page);
    own->setContentsMargins(indent, 0, 0, 0);
    rows.addWidget(own, row, 0);
  }
  beside->setBuddy(field);
  field->setAccessibleName(beside->text());
  rows.addWidget(field, row, 1);
  rows_.push_back({&item, field, own});
}

QWidget* FormItemsView::makeWidget(SmartItem& item, QWidget& page) {
  switch (item.Type()) {
    case SmartItemType::label:
      return makeLabel(text(item.Caption()), page);
    case SmartItemType::group:
      return makeHeading(text(item.Caption()), page);
    case SmartItemType::note:
      return makeNote(item, page);
    case SmartItemType::option: {
      auto* option = new OptionButton(control(), item, site(), &page);
      option->setContentsMargins(indent, 0, 0, 0);
      return option;
    }
    default:
      return nullptr;
  }
}

void FormItemsView::show(SmartItem& item) {
  const auto row = std::ranges::find(rows_, &item, &Row::item);
  if (row == rows_.end()) return;
  row->widget->setVisible(item.Visible());
  if (row->caption) row->caption->setVisible(item.Visible());
  if (row->caption) row->caption->setText(text(item.Caption()).trimmed());
  if (auto* dropDown = dynamic_cast<DropDown*>(row->widget)) dropDown->showState();
  if (auto* option = dynamic_cast<OptionButton*>(row->widget)) option->showState();
  if (auto* label = dynamic_cast<QLabel*>(row->widget))
    label->setText(item.Type() == SmartItemType::note ? noteText(item) : text(item.Caption()));
}

std::string FormItemsView::focusedKey() const {
  const QWidget* focused = QApplication::focusWidget();
  const auto row = std::ranges::find(rows_, focused, [](const Row& each) { return each.widget; });
  // The items of outdated rows may be gone: a row's place is all that is safe to ask for.
  if (!focused || row == rows_.end()) return {};
  return focused->objectName().toStdString();
}

void FormItemsView::keepFocus(const std::string& key) {
  for (const Row& row : rows_) {
    row.widget->setObjectName(text(row.item->Key()));
    if (!key.empty() && row.item->Key() == key) row.widget->setFocus();
  }
}

// The area itself brings only those into sight that the focus reaches from within.
bool FormItemsView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && watched->isWidgetType())
    area_->ensureWidgetVisible(static_cast<QWidget*>(watched), 0, fieldHeight);
  return false;
}

void FormItemsView::resizeEvent(QResizeEvent* event) {
  ItemsPanel::resizeEvent(event);
  area_->setGeometry(rect());
}

}  // namespace tarnel::qt
