#include "Form.h"

#include <algorithm>

#include "Desktop.h"

namespace tarnel {
namespace {

std::vector<Form*>& formList() {
  thread_local std::vector<Form*> forms;
  return forms;
}

}  // namespace

std::vector<Form*> openForms() { return formList(); }

Form::Form(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() { std::erase(formList(), this); }

void Form::setCaption(std::string caption) {
  caption_ = std::move(caption);
  captionChanged();
}

void Form::Move(float left, float top, float width, float height) {
  const Placement next{left, top, std::max(width, 0.0F), std::max(height, 0.0F)};
  if (next == placement_) return;
  const bool resized = next.width != placement_.width || next.height != placement_.height;
  placement_ = next;
  placementChanged();
  if (resized && visible_) Form_Resize();
}

void Form::load() {
  if (state_ != State::unloaded) return;
  state_ = State::loaded;
  formList().push_back(this);
  Form_Load();
}

void Form::showModal(Desktop& desktop) {
  if (state_ != State::loaded) return;
  setVisible(true);
  Form_Resize();
  desktop.runModal(*this);
}

void Form::hide() { setVisible(false); }

void Form::unload() {
  if (state_ != State::loaded) return;
  const auto leave = [this] {
    state_ = State::unloaded;
    std::erase(formList(), this);
    setVisible(false);
  };
  state_ = State::unloading;
  try {
    Form_QueryUnload();
  } catch (...) {
    leave();  // a form that couldn't say goodbye would be waited for without end
    throw;
  }
  leave();
}

void Form::setVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  visibleChanged();
}

}  // namespace tarnel
