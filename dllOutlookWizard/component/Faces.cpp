#include "Faces.h"

#include <utility>

#include "DescriptorStream.h"

namespace tarnel {
namespace {

struct ScriptStreams {
  ScriptStreams(int commands, int facts) : input(commands), output(facts) {}
  DescriptorInput input;
  DescriptorOutput output;
};

// A desktop together with the streams that it needs.
struct ScriptFace {
  explicit ScriptFace(std::shared_ptr<ScriptStreams> shared) : streams(std::move(shared)) {
    streams->input.clear();  // more may have come after an end
    streams->output.clear();
  }
  std::shared_ptr<ScriptStreams> streams;
  std::unique_ptr<script::ScriptDesktop> desktop = Composition::scriptDesktop(streams->input, streams->output);
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
  // The streams read ahead, so the next wizard on the same script needs these.
  return [streams = std::make_shared<ScriptStreams>(commands, facts)] { return desktopOf<ScriptFace>(streams); };
}

Face picturesFace(const PictureOptions& options, int told) {
  return [options, told] { return desktopOf<PicturesFace>(options, told); };
}

}  // namespace tarnel
