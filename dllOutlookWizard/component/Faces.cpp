#include "Faces.h"

#include <utility>

#include "DescriptorStream.h"

namespace tarnel {
namespace {

// A desktop together with the streams that it needs.
struct ScriptFace {
  ScriptFace(int commands, int facts) : input(commands), output(facts) {}
  DescriptorInput input;
  DescriptorOutput output;
  std::unique_ptr<script::ScriptDesktop> desktop = Composition::scriptDesktop(input, output);
};

struct PicturesFace {
  PicturesFace(const PictureOptions& options, int told)
      : output(told), desktop(Composition::pictureDesktop(options, output)) {
    output << std::unitbuf;
  }
  DescriptorOutput output;
  std::shared_ptr<Desktop> desktop;
};

template <class Whole, class... Arguments>
std::shared_ptr<Desktop> desktopOf(Arguments&&... arguments) {
  const auto whole = std::make_shared<Whole>(std::forward<Arguments>(arguments)...);
  return {whole, whole->desktop.get()};
}

}  // namespace

Face windowFace() { return Composition::windowDesktop; }

Face scriptFace(int commands, int facts) {
  return [commands, facts] { return desktopOf<ScriptFace>(commands, facts); };
}

Face picturesFace(const PictureOptions& options, int told) {
  return [options, told] { return desktopOf<PicturesFace>(options, told); };
}

}  // namespace tarnel
