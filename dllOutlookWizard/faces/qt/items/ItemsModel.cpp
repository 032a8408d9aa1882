#include "ItemsModel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <algorithm>
#include <utility>

#include "Pictures.h"
#include "QtText.h"

namespace tarnel::qt {
namespace {

QString captionOf(const SmartItem& item) {
  return item.Type() == SmartItemType::checkRow ? rowCaption(item.Caption()) : oneLine(item.Caption());
}

bool isChecked(const SmartItem& item) { return item.Checked(); }
bool canBeChecked(const SmartItem& item) {
  return item.Type() == SmartItemType::checkRow || item.Type() == SmartItemType::checkBox;
}
bool isHeading(const SmartItem& item) {
  return item.Type() == SmartItemType::group || item.Type() == SmartItemType::label;
}

QString descriptionOf(const SmartItem& item) {
  QStringList parts{pictureWords(item.Picture()), text(item.ToolTipText())};
  parts.removeAll(QString());
  return parts.join(u'\n');
}

}  // namespace

ItemsModel::ItemsModel(SmartItems& items, QObject* parent)
    : QAbstractListModel(parent), items_(items), rows_(static_cast<int>(items.Count())) {
  connections_.push_back(items.added.connect([this](SmartItem&) { later(); }));
  connections_.push_back(items.removed.connect([this](std::size_t) { removedOrCleared(); }));
  connections_.push_back(items.cleared.connect([this] { removedOrCleared(); }));
  connections_.push_back(
      items.changed.connect([this](SmartItem& item, SmartItem::Property property) { changed(item, property); }));
}

int ItemsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

SmartItem* ItemsModel::item(int row) const {
  if (row < 0 || static_cast<std::size_t>(row) >= items_.Count()) return nullptr;
  return &items_.at(static_cast<std::size_t>(row));
}

QVariant ItemsModel::data(const QModelIndex& index, int role) const {
  const SmartItem* item = index.isValid() ? this->item(index.row()) : nullptr;
  if (!item) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
      return captionOf(*item);
    case Qt::AccessibleDescriptionRole:
      return descriptionOf(*item);
    case Qt::CheckStateRole:
      return canBeChecked(*item) ? QVariant(isChecked(*item) ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::FontRole: {
      QFont font = formFont();
      font.setBold(isHeading(*item));
      return font;
    }
    case Qt::ForegroundRole:  // a heading can't be chosen, yet reads as well as what can
      return isHeading(*item) ? QVariant(QApplication::palette().text()) : QVariant();
    case backColorRole:
      return item->BackColor();
    case highlightedRole:
      return item->Highlighted();
    case pictureRole:
      return text(item->Picture());
    case toolTipRole:
      return text(item->ToolTipText());
    case fullCaptionRole:
      return text(item->Caption()).replace(QStringLiteral("&&"), QStringLiteral("&"));
    default:
      return {};
  }
}

Qt::ItemFlags ItemsModel::flags(const QModelIndex& index) const {
  const SmartItem* item = index.isValid() ? this->item(index.row()) : nullptr;
  if (!item || isHeading(*item) || item->Type() == SmartItemType::separator) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

void ItemsModel::removedOrCleared() {
  rearranged_ = true;
  later();
}

void ItemsModel::changed(const SmartItem& item, SmartItem::Property property) {
  if (property == SmartItem::Property::tag || property == SmartItem::Property::value) return;
  const int row = static_cast<int>(item.Index());
  if (row >= rows_) return;  // the views have yet to hear of the row itself
  firstChanged_ = firstChanged_ < 0 ? row : std::min(firstChanged_, row);
  lastChanged_ = std::max(lastChanged_, row);
  later();
}

void ItemsModel::later() {
  if (std::exchange(waiting_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { catchUp(); }, Qt::QueuedConnection);
}

void ItemsModel::catchUp() {
  if (!std::exchange(waiting_, false)) return;
  const int now = static_cast<int>(items_.Count());
  const int first = std::exchange(firstChanged_, -1);
  const int last = std::min(std::exchange(lastChanged_, -1), now - 1);
  if (std::exchange(rearranged_, false)) {
    beginResetModel();
    rows_ = now;
    endResetModel();
    return;
  }
  if (now > rows_) {
    beginInsertRows({}, rows_, now - 1);
    rows_ = now;
    endInsertRows();
  }
  if (first >= 0 && first <= last) dataChanged(index(first), index(last));
}

}  // namespace tarnel::qt
