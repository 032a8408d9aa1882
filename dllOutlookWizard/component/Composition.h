#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>

#include "Platform.h"
#include "ScriptDesktop.h"

namespace tarnel {

struct PictureOptions {
  std::filesystem::path folder;  // made where it is missing
  double scale = 1;              // pixels to one of a plain screen
  bool dark = false;
};

// The one place that names the real parts: clock, registry, database engine, Outlook and the faces towards the user.
// Lasts longer than everything that works on them.
class Composition {
 public:
  // Where a profile's mailbox file is, as the wizard names the profile; none for an unknown one.
  using ProfileMailbox = std::function<std::optional<std::filesystem::path>(Registry&, const std::string& profile)>;

  // `defaultMailbox` is Outlook's mailbox file where no profile is chosen.
  Composition(ProfileMailbox profileMailbox, std::filesystem::path defaultMailbox);
  // Takes the platform away again.
  ~Composition();
  Composition(const Composition&) = delete;
  Composition& operator=(const Composition&) = delete;

  const Clock& clock() const;
  ado::Provider& database();
  Registry& registry();

  // Makes the parts and these ones, which the caller owns, this thread's platform. Help pages and settings file lie in
  // `applicationFolder`; `mailbox` as in Platform.
  void install(Desktop& desktop, TarnelErrReport& errorReport, TarnelUtilities& utilities,
               std::filesystem::path applicationFolder, std::filesystem::path mailbox);

  // A desktop without a screen that knows the wizard's form.
  static std::unique_ptr<script::ScriptDesktop> scriptDesktop(std::istream& commands, std::ostream& facts);
  // The screen. Failure 53 when none can be reached, 429 when the component was built without windows; so does the
  // next.
  static std::shared_ptr<Desktop> windowDesktop();
  // Saves a picture of the window for each tab and closes it, on machines without a screen too. `told` takes what
  // boxes would say.
  static std::shared_ptr<Desktop> pictureDesktop(const PictureOptions& options, std::ostream& told);

 private:
  // Lets the desktop save what is printed, where the component was built with windows.
  static void addDocuments(script::ScriptDesktop& desktop);

  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tarnel
