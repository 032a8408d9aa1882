#include "ItemsPanel.h"

#include <utility>

namespace tarnel::qt {

ItemsPanel::ItemsPanel(SmartUI& control, ViewSite& site, QWidget* parent)
    : QWidget(parent), control_(control), site_(site) {
  SmartItems& items = control.Items();
  connections_.push_back(items.added.connect([this](SmartItem&) { outdated(); }));
  connections_.push_back(items.removed.connect([this](std::size_t) { outdated(); }));
  connections_.push_back(items.cleared.connect([this] { outdated(); }));
  connections_.push_back(items.changed.connect([this](SmartItem& item, SmartItem::Property) {
    if (!outdated_) show(item);
  }));
  connections_.push_back(control.refreshed.connect([this] { update(); }));
}

void ItemsPanel::outdated() {
  if (std::exchange(outdated_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { catchUp(); }, Qt::QueuedConnection);
}

void ItemsPanel::catchUp() {
  if (!std::exchange(outdated_, false)) return;
  build();
  site_.tabStopsChanged();
}

}  // namespace tarnel::qt
