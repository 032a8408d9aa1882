#include "FormFacts.h"

#include "Conversions.h"
#include "FormControls.h"
#include "Label.h"
#include "Panels.h"
#include "SftTabs.h"
#include "ctDropDate.h"

namespace tarnel::script {
namespace {

std::string isoDay(Date date) { return isoText(date.wholeDay()).substr(0, 10); }

Json subItemFacts(const SmartItems* items) {
  Json list = Json::array();
  if (!items) return list;
  for (const SmartItem& item : *items)
    list.push_back({{"key", item.Key()},
                    {"caption", item.Caption()},
                    {"type", static_cast<int>(item.Type())},
                    {"checked", item.Checked()},
                    {"visible", item.Visible()}});
  return list;
}

Json tabFacts(const SftTabs& tabs) {
  Json enabled = Json::array();
  for (std::size_t i = 0; i < tabs.Count(); ++i) enabled.push_back(tabs.TabEnabled(i));
  return enabled;
}

// Number of the panel of the array `picWiz` that is shown.
Json shownPanel(const Form& form) {
  for (const Control* control : form.controls())
    if (control->Name() == "picWiz" && control->Visible() && control->Index()) return *control->Index();
  return nullptr;
}

Json buttonFacts(const SmartUI& bar) {
  Json buttons = Json::object();
  for (const SmartItem& item : bar.Items())
    if (!item.Key().empty()) buttons[item.Key()] = item.Visible();
  return buttons;
}

}  // namespace

Json valueFact(const Variant& value) {
  if (value.isEmpty() || value.isNull()) return nullptr;
  if (const auto* flag = value.get<bool>()) return *flag;
  if (const auto* number = value.get<std::int32_t>()) return *number;
  if (value.is<float>() || value.is<double>()) return toDouble(value);
  return toText(value);
}

Json itemFacts(const SmartUI& control) {
  Json list = Json::array();
  for (const SmartItem& item : control.Items())
    list.push_back({{"key", item.Key()},
                    {"caption", item.Caption()},
                    {"type", static_cast<int>(item.Type())},
                    {"picture", item.Picture()},
                    {"tag", item.Tag()},
                    {"checked", item.Checked()},
                    {"value", valueFact(item.Value())},
                    {"visible", item.Visible()},
                    {"highlighted", item.Highlighted()},
                    {"toolTip", item.ToolTipText()},
                    {"backColor", item.BackColor()},
                    {"subItems", subItemFacts(item.subItemsIfAny())}});
  return list;
}

Json rowFacts(const ctMDay& schedule) {
  Json rows = Json::array();
  for (std::int16_t index = 1; index <= schedule.AppCount(); ++index) {
    const ctMDay::Appointment& row = schedule.appointment(index);
    rows.push_back({{"index", index},
                    {"start", row.start},
                    {"end", row.end},
                    {"date", isoDay(Date{static_cast<double>(row.date)})},
                    {"text", row.text},
                    {"key", row.key},
                    {"tag", row.tag},
                    {"color", row.color},
                    {"ownerImage", row.ownerImage},
                    {"markImage", row.markImage},
                    {"state", row.state},
                    {"allDay", row.allDay}});
  }
  return rows;
}

Json formFacts(const Form& form) {
  const Placement& place = form.placement();
  const auto* tabs = firstControl<SftTabs>(form);
  const auto* header = controlNamed<Label>(form, "lblHeader");
  const auto* bar = controlNamed<SmartUI>(form, "smtActions");
  const auto* date = firstControl<ctDropDate>(form);
  return {{"form",
           {{"name", form.Name()},
            {"left", place.left},
            {"top", place.top},
            {"width", place.width},
            {"height", place.height}}},
          {"tab", tabs ? Json(tabs->Current()) : Json()},
          {"tabsEnabled", tabs ? tabFacts(*tabs) : Json()},
          {"panel", shownPanel(form)},
          {"header", header ? Json(header->Caption()) : Json()},
          {"buttons", bar ? buttonFacts(*bar) : Json()},
          {"date", date ? Json(isoDay(date->Date())) : Json()}};
}

}  // namespace tarnel::script
