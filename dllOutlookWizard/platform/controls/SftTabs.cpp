#include "SftTabs.h"

#include "Failure.h"

namespace tarnel {

SftTabs::SftTabs(std::string name, std::vector<std::string> captions) : Control(std::move(name)) {
  for (std::string& caption : captions) tabs_.push_back({std::move(caption)});
}

const SftTabs::Tab& SftTabs::tab(std::size_t index) const {
  if (index >= tabs_.size()) failSubscript();
  return tabs_[index];
}

void SftTabs::setTabEnabled(std::size_t index, bool enabled) {
  if (TabEnabled(index) == enabled) return;
  tabs_[index].enabled = enabled;
  tabsChanged();
}

void SftTabs::setCurrent(std::size_t index) {
  if (index >= tabs_.size()) failSubscript();
  if (index == current_) return;
  current_ = index;
  tabsChanged();
  Switching(index);
}

void SftTabs::switchTo(std::size_t index) {
  if (Enabled() && TabEnabled(index)) setCurrent(index);
}

}  // namespace tarnel
