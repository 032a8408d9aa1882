#include "Composition.h"
#include "PdfOutput.h"
#include "PictureDesktop.h"
#include "QtApplication.h"
#include "QtDesktop.h"

// The faces that need the window system, and what prints for the script face.
namespace tarnel {
namespace {

// What a window system takes as the arguments of the program, for as long as the process lives.
int argumentCount = 1;
char programName[] = "tarnel";
char* programArguments[] = {programName, nullptr};

// A desktop together with the application that it needs.
template <class Face>
struct WindowSystem {
  template <class... Arguments>
  explicit WindowSystem(std::unique_ptr<qt::QtApplication> started, Arguments&&... arguments)
      : application(std::move(started)), desktop(std::forward<Arguments>(arguments)...) {}
  std::unique_ptr<qt::QtApplication> application;
  Face desktop;
};

template <class Face, class... Arguments>
std::shared_ptr<Desktop> desktopOn(std::unique_ptr<qt::QtApplication> application, Arguments&&... arguments) {
  const auto whole =
      std::make_shared<WindowSystem<Face>>(std::move(application), std::forward<Arguments>(arguments)...);
  return {whole, &whole->desktop};
}

}  // namespace

std::shared_ptr<Desktop> Composition::windowDesktop() {
  return desktopOn<qt::QtDesktop>(std::make_unique<qt::QtApplication>(argumentCount, programArguments));
}

std::shared_ptr<Desktop> Composition::pictureDesktop(const PictureOptions& options, std::ostream& told) {
  const qt::Colors colors = options.dark ? qt::Colors::dark : qt::Colors::light;
  return desktopOn<qt::PictureDesktop>(
      std::make_unique<qt::QtApplication>(qt::QtApplication::WithoutScreen{}, argumentCount, programArguments, colors),
      options.folder, options.scale, told);
}

void Composition::addDocuments(script::ScriptDesktop& desktop) {
  desktop.setDocuments(std::make_shared<qt::PdfOutput>(
      std::filesystem::current_path(), [&desktop](const std::string& operation, const std::filesystem::path& file) {
        desktop.tellEvent(operation, {{"file", file.string()}});
      }));
}

}  // namespace tarnel
