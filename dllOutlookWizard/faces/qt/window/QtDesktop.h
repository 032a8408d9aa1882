#pragma once

#include <memory>

#include "Desktop.h"

namespace tarnel::qt {

class ViewFactory;

// The screen, the keyboard and the mouse. Needs a QtApplication that lives as long.
class QtDesktop : public Desktop {
 public:
  QtDesktop();
  // With other views than this room's.
  explicit QtDesktop(const ViewFactory& views);
  ~QtDesktop() override;

  MessageAnswer message(const Message& message) override;
  void report(const FailureReport& report) override;
  void doEvents() override;
  // Hands on what a listener of the form's controls threw; the window is gone then, the form still loaded.
  void runModal(Form& form) override;
  void setMousePointer(MousePointer pointer) override;
  MousePointer mousePointer() const override;
  // Shows nothing in a run's first moments, since most end in them. A run that is given up, or that says nothing more,
  // loses its bar when control comes back to the event loop.
  void progress(int done, int total) override;

 private:
  struct Inside;
  std::unique_ptr<Inside> inside_;
};

}  // namespace tarnel::qt
