#pragma once

#include <memory>

class QApplication;

namespace tarnel::qt {

enum class Colors { desktop, light, dark };

// The part of a process that every window needs. Where the host has one already, that one is used and left as it is.
class QtApplication {
 public:
  // `argc` and `argv` stay as they are for as long as this object. Failure 53 when no screen can be reached, 91 when
  // the host's own is of no use: none for widgets, or another thread's.
  QtApplication(int& argc, char** argv, Colors colors = Colors::desktop);
  // On a picture in memory instead of a screen: for machines without one.
  struct WithoutScreen {};
  QtApplication(WithoutScreen, int& argc, char** argv, Colors colors = Colors::light);
  ~QtApplication();

 private:
  void start(int& argc, char** argv, Colors colors);

  std::unique_ptr<QApplication> application_;  // none where the host has its own
};

}  // namespace tarnel::qt
