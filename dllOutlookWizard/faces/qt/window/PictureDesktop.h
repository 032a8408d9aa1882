#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <vector>

#include "Desktop.h"

namespace tarnel::qt {

class FormWindow;

// Saves pictures of what a screen would show instead of waiting for a user: of each form that is shown, one a tab,
// as PNG files named after form and tab. Then it closes the form. Questions are answered with no.
class PictureDesktop : public Desktop {
 public:
  // `folder` is made where it is missing. `scale` is that of the screen: 1, 1.5, 2. Messages and reports are written
  // to `told`, which outlives the desktop.
  PictureDesktop(std::filesystem::path folder, double scale, std::ostream& told);
  ~PictureDesktop() override;

  // Those saved so far.
  const std::vector<std::filesystem::path>& pictures() const { return pictures_; }

  MessageAnswer message(const Message& message) override;
  void report(const FailureReport& report) override;
  void doEvents() override;
  // Failure 75 when a picture can't be written.
  void runModal(Form& form) override;
  void setMousePointer(MousePointer pointer) override { pointer_ = pointer; }
  MousePointer mousePointer() const override { return pointer_; }
  void progress(int, int) override {}

 private:
  struct Inside;
  void save(FormWindow& window, const std::string& name);

  std::filesystem::path folder_;
  double scale_;
  std::ostream& told_;
  std::vector<std::filesystem::path> pictures_;
  MousePointer pointer_ = MousePointer::standard;
  std::unique_ptr<Inside> inside_;
};

}  // namespace tarnel::qt
