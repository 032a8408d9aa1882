#pragma once

#include <string>
#include <vector>

#include "Control.h"

namespace tarnel {

// A strip of tabs. Tabs count from 0; "&" in a caption marks the letter that chooses it with Alt.
class SftTabs : public Control {
 public:
  SftTabs(std::string name, std::vector<std::string> captions);

  std::size_t Count() const { return tabs_.size(); }
  // Failure 9 out of range, here and below.
  const std::string& Caption(std::size_t index) const { return tab(index).caption; }
  bool TabEnabled(std::size_t index) const { return tab(index).enabled; }
  void setTabEnabled(std::size_t index, bool enabled);

  std::size_t Current() const { return current_; }
  // Raises Switching when it is another tab than before.
  void setCurrent(std::size_t index);
  // What a user does: nothing on a disabled tab.
  void switchTo(std::size_t index);

  // Raised with the new tab's number, which is the current one already.
  Signal<std::size_t> Switching;
  Signal<> tabsChanged;

 private:
  struct Tab {
    std::string caption;
    bool enabled = true;
  };
  const Tab& tab(std::size_t index) const;

  std::vector<Tab> tabs_;
  std::size_t current_ = 0;
};

}  // namespace tarnel
