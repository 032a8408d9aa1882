#pragma once

#include <string>
#include <vector>

#include "Control.h"

namespace tarnel {

class Desktop;

// A window: a title, a place on the screen and a list of controls. It goes from unloaded to loaded (hidden, then
// perhaps shown) and back; the procedures Form_Load, Form_Resize, Form_KeyDown and Form_QueryUnload are its own.
class Form {
 public:
  // What the frame takes of a form's Width and Height, in twips; the rest is for its controls.
  static constexpr float frameWidth = 100;
  static constexpr float frameHeight = 460;

  Form(std::string name, std::string caption);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void setCaption(std::string caption);

  // The outer edges, in twips on the screen.
  const Placement& placement() const { return placement_; }
  float Left() const { return placement_.left; }
  float Top() const { return placement_.top; }
  float Width() const { return placement_.width; }
  float Height() const { return placement_.height; }
  // Raises Form_Resize when the size changes while the form is shown.
  void Move(float left, float top, float width, float height);
  void setWidth(float width) { Move(Left(), Top(), width, Height()); }
  void setHeight(float height) { Move(Left(), Top(), Width(), height); }
  // The room for the controls.
  float ScaleWidth() const { return Width() - frameWidth; }
  float ScaleHeight() const { return Height() - frameHeight; }

  bool isLoaded() const { return state_ != State::unloaded; }
  bool Visible() const { return visible_; }

  // Loads without showing. Does nothing on a loaded form.
  void load();
  // Shows the form above all others and returns when it was hidden or unloaded; at once when it is not loaded. The
  // first display raises Form_Resize.
  void showModal(Desktop& desktop);
  void hide();
  // Runs Form_QueryUnload, then takes the form off the screen. Does nothing on a form that is gone or going.
  void unload();
  // A key comes to the form before its controls; `keyCode` 0 afterwards says that nothing else shall see it.
  void keyDown(int& keyCode) { Form_KeyDown(keyCode); }

  // All controls, containers before what is in them, in tab order.
  const std::vector<Control*>& controls() const { return controls_; }

  Signal<> captionChanged;
  Signal<> placementChanged;
  Signal<> visibleChanged;

 protected:
  // The control must live as long as the form.
  void addControl(Control& control) { controls_.push_back(&control); }

  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_KeyDown(int& /*keyCode*/) {}
  virtual void Form_QueryUnload() {}

 private:
  enum class State { unloaded, loaded, unloading };
  void setVisible(bool visible);

  std::string name_;
  std::string caption_;
  Placement placement_;
  State state_ = State::unloaded;
  bool visible_ = false;
  std::vector<Control*> controls_;
};

// The loaded forms of this thread, in the order of their loading: a copy, so that forms may go while it is walked.
std::vector<Form*> openForms();

}  // namespace tarnel
