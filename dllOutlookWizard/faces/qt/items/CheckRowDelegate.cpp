#include "CheckRowDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "Colors.h"
#include "ItemsModel.h"
#include "Pictures.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {

constexpr int boxSide = 14;
constexpr int rowPictureSide = 16;
constexpr int rowGap = 6;

struct Parts {
  QRect box, picture, caption;
};

Parts partsOf(const QRect& row) {
  const auto square = [&row](int left, int side) {
    return QRect(left, row.top() + (row.height() - side) / 2, side, side);
  };
  Parts parts;
  parts.box = square(row.left() + rowGap, boxSide);
  parts.picture = square(parts.box.right() + 1 + rowGap, rowPictureSide);
  parts.caption = row;
  parts.caption.setLeft(parts.picture.right() + 1 + rowGap);
  parts.caption.setRight(row.right() - rowGap);
  return parts;
}

QColor groundOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
  const QColor accent = accentColor(option.palette);
  const Color own = index.data(ItemsModel::backColorRole).toInt();
  QColor ground = own == -1 ? option.palette.color(QPalette::Base) : toQColor(own);
  if (index.data(ItemsModel::highlightedRole).toBool()) ground = blend(ground, accent, 0.35);
  if (option.state & QStyle::State_Selected)
    ground = blend(ground, accent, option.state & QStyle::State_Active ? 0.22 : 0.12);
  else if (option.state & QStyle::State_MouseOver)
    ground = blend(ground, accent, 0.07);
  return ground;
}

void paintBox(QPainter& painter, const QRect& box, bool checked, const QColor& accent, const QColor& ground) {
  const QRectF edge = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool lightGround = readableOn(ground) != QColor(Qt::white);
  const QColor empty = lightGround ? blend(ground, Qt::white, 0.7) : blend(ground, Qt::black, 0.2);
  const QColor fill = checked ? accent : empty;
  painter.setPen(QPen(blend(fill, readableOn(ground), checked ? 0.25 : 0.6), 1));
  painter.setBrush(fill);
  painter.drawRoundedRect(edge, 3, 3);
  if (!checked) return;
  painter.setPen(QPen(readableOn(fill), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  paintTick(painter, edge.adjusted(1.5, 1.5, -1.5, -1.5));
}

}  // namespace

void CheckRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const Parts parts = partsOf(option.rect);
  const QColor ground = groundOf(option, index);
  const QColor text = option.palette.color(QPalette::Text);
  const QColor ink = contrast(ground, text) >= 4.5 ? text : readableOn(ground);
  painter->save();
  // Smoothed edges would leave seams between the rows where the screen's scale is no whole number.
  painter->setRenderHint(QPainter::Antialiasing, false);
  painter->fillRect(option.rect, ground);
  painter->setRenderHint(QPainter::Antialiasing);
  const QVariant check = index.data(Qt::CheckStateRole);
  if (check.isValid()) paintBox(*painter, parts.box, check.toInt() == Qt::Checked, accentColor(option.palette), ground);
  paintPicture(*painter, parts.picture, index.data(ItemsModel::pictureRole).toString().toStdString());
  painter->setPen(ink);
  painter->setFont(option.font);
  const QString caption = index.data(Qt::DisplayRole).toString();
  painter->drawText(parts.caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                    option.fontMetrics.elidedText(caption, Qt::ElideRight, parts.caption.width()));
  if (option.state & QStyle::State_HasFocus) {
    painter->setPen(QPen(accentColor(option.palette), 1));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
  }
  painter->restore();
}

QSize CheckRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {option.rect.width(), std::max(rowHeight, option.fontMetrics.height() + 4)};
}

bool CheckRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid())
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  const QString full = index.data(ItemsModel::fullCaptionRole).toString();
  const QString shown = index.data(Qt::DisplayRole).toString();
  QString tip = index.data(ItemsModel::toolTipRole).toString();
  const bool fits = view->fontMetrics().horizontalAdvance(shown) <= partsOf(option.rect).caption.width();
  if (!fits || full != shown) tip = tip.isEmpty() || tip == full ? full : full.left(1000) + u'\n' + tip;
  QToolTip::showText(event->globalPos(), toolTip(tip), view->viewport(), option.rect);
  return true;
}

}  // namespace tarnel::qt
