#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Signal.h"

namespace tarnel {

// Lengths are twips: 1440 to an inch, 15 to a pixel at 96 dpi.
struct Placement {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  friend bool operator==(const Placement&, const Placement&) = default;
};

// What every control is, whatever it shows: a name, a place inside its container, visible and enabled or not. Controls
// are models: they hold values and raise events, a view draws them.
class Control {
 public:
  // `index` is its place in a control array; a control of its own has none.
  explicit Control(std::string name, std::optional<int> index = {});
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  std::optional<int> Index() const { return index_; }
  // As written in code: "smtTaskList(0)", "tabWiz".
  std::string fullName() const;

  // Relative to the container, or to the form where there is none.
  const Placement& placement() const { return placement_; }
  float Left() const { return placement_.left; }
  float Top() const { return placement_.top; }
  float Width() const { return placement_.width; }
  float Height() const { return placement_.height; }
  // Negative widths and heights become 0.
  void Move(float left, float top, float width, float height);
  void setTop(float top) { Move(Left(), top, Width(), Height()); }
  void setWidth(float width) { Move(Left(), Top(), width, Height()); }
  void setHeight(float height) { Move(Left(), Top(), Width(), height); }

  // The control's own switch: a control inside a hidden container keeps it.
  bool Visible() const { return visible_; }
  void setVisible(bool visible);
  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  // Puts this control into `container`, after those that are there. A container must outlive its contents or lose
  // them first.
  void setContainer(Control& container);
  Control* container() const { return container_; }
  const std::vector<Control*>& contents() const { return contents_; }

  // What a screen reader calls the control; its name where none was given.
  const std::string& accessibleName() const { return accessibleName_.empty() ? name_ : accessibleName_; }
  void setAccessibleName(std::string name) { accessibleName_ = std::move(name); }
  const std::string& ToolTipText() const { return toolTip_; }
  void setToolTipText(std::string text) { toolTip_ = std::move(text); }

  // Raised after the change, only by a change.
  Signal<> placementChanged;
  Signal<> visibleChanged;
  Signal<> enabledChanged;

 private:
  std::string name_;
  std::optional<int> index_;
  Placement placement_;
  bool visible_ = true;
  bool enabled_ = true;
  Control* container_ = nullptr;
  std::vector<Control*> contents_;
  std::string accessibleName_;
  std::string toolTip_;
};

}  // namespace tarnel
