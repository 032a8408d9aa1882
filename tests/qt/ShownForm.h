#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "DemoForm.h"
#include "FakeDesktop.h"
#include "FormWindow.h"

namespace tarnel::qt {

// The demo form in its window, active and painted.
struct ShownForm {
  explicit ShownForm(int rows = 8) : form(rows) {
    form.load();
    test::FakeDesktop desktop;
    form.showModal(desktop);
    window = std::make_unique<FormWindow>(form, views, nullptr);
    window->present();
    if (!QTest::qWaitForWindowActive(window.get())) throw std::runtime_error("The window never became active");
    settle();
  }

  static void settle() { QApplication::processEvents(); }

  template <class View = QWidget>
  View& view(const Control& control) {
    return dynamic_cast<View&>(*window->view(control));
  }

  // The button or option with this caption, hidden or not.
  QAbstractButton* button(const Control& control, const QString& caption) {
    for (auto* button : view(control).findChildren<QAbstractButton*>())
      if (button->text() == caption) return button;
    return nullptr;
  }

  DemoForm form;
  ViewFactory views;
  std::unique_ptr<FormWindow> window;
};

}  // namespace tarnel::qt
