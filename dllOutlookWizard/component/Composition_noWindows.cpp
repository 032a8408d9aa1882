#include "Composition.h"
#include "Failure.h"

// The same where the component is built without windows.
namespace tarnel {
namespace {

[[noreturn]] void failWithoutWindows() {
  throw Failure(failure::noSuchObject,
                "The component was built without windows; \"tarnel drive\" runs the same wizard");
}

}  // namespace

std::shared_ptr<Desktop> Composition::windowDesktop() { failWithoutWindows(); }
std::shared_ptr<Desktop> Composition::pictureDesktop(const PictureOptions&, std::ostream&) { failWithoutWindows(); }
void Composition::addDocuments(script::ScriptDesktop&) {}

}  // namespace tarnel
