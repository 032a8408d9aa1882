#pragma once

#include <array>
#include <string_view>

#include "Control.h"

namespace tarnel {

// Divides its width between two panes, "Left" and "Right", with a bar between them. When the splitter is resized the
// panes keep their shares. Lengths in twips.
class SSSplitter : public Control {
 public:
  static constexpr float barWidth = 75;
  static constexpr float smallestPane = 600;

  class Pane {
   public:
    float Width() const { return width_; }
    // The other pane takes what is left; both keep at least smallestPane where there is room for it.
    void setWidth(float width) { splitter_.setPaneWidth(*this, width); }
    // `content` fills the pane from now on.
    void setContent(Control& content);

   private:
    friend class SSSplitter;
    explicit Pane(SSSplitter& splitter) : splitter_(splitter) {}
    SSSplitter& splitter_;
    float width_ = 0;
    Control* content_ = nullptr;
  };

  explicit SSSplitter(std::string name);

  // "Left" or "Right", case ignored. Failure 5 for any other name.
  Pane& Panes(std::string_view name);

  // What a user does: drags the bar until the left pane has this width.
  void drag(float leftWidth);

  Signal<> SplitterEndDrag;

 private:
  void setPaneWidth(const Pane& pane, float width);
  void setLeftWidth(float width);
  void resized();
  void placeContents();
  float room() const;

  Pane left_{*this};
  Pane right_{*this};
  float leftShare_ = 0.5F;  // of the room that both panes have together
  Connection onPlacement_;
};

}  // namespace tarnel
