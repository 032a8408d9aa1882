#include "ViewFactory.h"

#include "BarView.h"
#include "BrowserView.h"
#include "CheckListView.h"
#include "DayScheduleView.h"
#include "DropDateView.h"
#include "FormItemsView.h"
#include "LabelView.h"
#include "Panels.h"
#include "PaperOutput.h"
#include "SpellEditor.h"
#include "SplitterView.h"
#include "TabsView.h"

namespace tarnel::qt {
namespace {

QWidget* makeItemsView(SmartUI& control, ViewSite& site, QWidget* parent) {
  switch (control.look()) {
    case SmartUI::Look::checkList:
      return new CheckListView(control, site, parent);
    case SmartUI::Look::bar:
      return new BarView(control, site, parent);
    case SmartUI::Look::form:
      return new FormItemsView(control, site, parent);
  }
  return nullptr;
}

}  // namespace

ViewFactory::ViewFactory() {
  add<Label>([](Label& control, ViewSite&, QWidget* parent) { return new LabelView(control, parent); });
  add<PictureBox>([](PictureBox&, ViewSite&, QWidget* parent) { return new QWidget(parent); });
  add<SSPanel>([](SSPanel&, ViewSite&, QWidget* parent) { return new QWidget(parent); });
  add<SSSplitter>(
      [](SSSplitter& control, ViewSite& site, QWidget* parent) { return new SplitterView(control, site, parent); });
  add<SftTabs>([](SftTabs& control, ViewSite& site, QWidget* parent) { return new TabsView(control, site, parent); });
  add<SmartUI>(makeItemsView);
  add<WebBrowser>(
      [](WebBrowser& control, ViewSite& site, QWidget* parent) { return new BrowserView(control, site, parent); });
  // Nothing of it is to be seen but what it prints.
  add<SpellEditor>([](SpellEditor& control, ViewSite&, QWidget* parent) -> QWidget* {
    control.setOutput(std::make_shared<PaperOutput>(parent));
    return nullptr;
  });
  add<ctDropDate>(
      [](ctDropDate& control, ViewSite& site, QWidget* parent) { return new DropDateView(control, site, parent); });
  add<ctMDay>(
      [](ctMDay& control, ViewSite& site, QWidget* parent) { return new DayScheduleView(control, site, parent); });
}

QWidget* ViewFactory::make(Control& control, ViewSite& site, QWidget* parent) const {
  const auto maker = makers_.find(typeid(control));
  return maker == makers_.end() ? nullptr : maker->second(control, site, parent);
}

}  // namespace tarnel::qt
