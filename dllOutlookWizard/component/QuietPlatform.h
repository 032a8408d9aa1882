#pragma once

#include "Platform.h"

namespace tarnel {

// While this lives, what is only good to know isn't shown: work that nobody asked for just then tells no counts.
// Warnings and questions come through.
class QuietPlatform {
 public:
  QuietPlatform();
  ~QuietPlatform();
  QuietPlatform(const QuietPlatform&) = delete;
  QuietPlatform& operator=(const QuietPlatform&) = delete;

 private:
  class QuietDesktop : public Desktop {
   public:
    explicit QuietDesktop(Desktop& real) : real_(real) {}
    MessageAnswer message(const Message& message) override;
    void report(const FailureReport& report) override { real_.report(report); }
    void doEvents() override { real_.doEvents(); }
    void runModal(Form& form) override { real_.runModal(form); }
    void setMousePointer(MousePointer pointer) override { real_.setMousePointer(pointer); }
    MousePointer mousePointer() const override { return real_.mousePointer(); }
    void progress(int done, int total) override { real_.progress(done, total); }

   private:
    Desktop& real_;
  };

  Platform before_;
  QuietDesktop desktop_;
};

}  // namespace tarnel
