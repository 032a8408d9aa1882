#include "Composition.h"

#include "Failure.h"
#include "FileRegistry.h"
#include "Folders.h"
#include "OutlookFactory.h"
#include "SqliteProvider.h"
#include "SystemClock.h"
#include "frmOutWiz.h"
#ifdef TARNEL_QT
#include "PdfOutput.h"
#endif
#include "m_OutlookWizard.h"
#ifdef TARNEL_QT
#include "PictureDesktop.h"
#include "QtApplication.h"
#include "QtDesktop.h"
#endif

namespace tarnel {
namespace {

std::vector<float> sizesOf(const Form& form) {
  const auto* wizard = dynamic_cast<const frmOutWiz*>(&form);
  if (!wizard) return {};
  const auto& sizes = wizard->state().meSizes;
  return {sizes.begin(), sizes.end()};
}

}  // namespace

struct Composition::Parts {
  Parts(ProfileMailbox profileMailbox, std::filesystem::path defaultMailbox)
      : outlook([this,
                 lookup = std::move(profileMailbox)](const std::string& profile) { return lookup(registry, profile); },
                std::move(defaultMailbox), locale, clock) {}

  SystemClock clock;
  Locale locale = Locale::ofSystem();
  FileRegistry registry{folders::registry()};
  sqlite::SqliteProvider database;
  mailbox::OutlookFactory outlook;
};

Composition::Composition(ProfileMailbox profileMailbox, std::filesystem::path defaultMailbox)
    : parts_(std::make_unique<Parts>(std::move(profileMailbox), std::move(defaultMailbox))) {}

Composition::~Composition() {
  releaseOutlook();  // the session would keep it beyond the clock that it reads
  removePlatform();
}

const Clock& Composition::clock() const { return parts_->clock; }
ado::Provider& Composition::database() { return parts_->database; }

void Composition::install(Desktop& desktop, TarnelErrReport& errorReport, TarnelUtilities& utilities,
                          std::filesystem::path applicationFolder) {
  installPlatform({.desktop = desktop,
                   .clock = parts_->clock,
                   .locale = parts_->locale,
                   .registry = parts_->registry,
                   .database = parts_->database,
                   .outlook = parts_->outlook,
                   .errorReport = errorReport,
                   .utilities = utilities,
                   .applicationFolder = std::move(applicationFolder)});
}

std::unique_ptr<script::ScriptDesktop> Composition::scriptDesktop(std::istream& commands, std::ostream& facts) {
  auto desktop = std::make_unique<script::ScriptDesktop>(commands, facts);
  desktop->setSizes(sizesOf);
#ifdef TARNEL_QT
  desktop->setDocuments(std::make_shared<qt::PdfOutput>(
      std::filesystem::current_path(),
      [told = desktop.get()](const std::string& operation, const std::filesystem::path& file) {
        told->tellEvent(operation, {{"file", file.string()}});
      }));
#endif
  return desktop;
}

#ifdef TARNEL_QT
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
#else
namespace {

[[noreturn]] void failWithoutWindows() {
  throw Failure(failure::noSuchObject,
                "The component was built without windows; \"tarnel drive\" runs the same wizard");
}

}  // namespace

std::shared_ptr<Desktop> Composition::windowDesktop() { failWithoutWindows(); }
std::shared_ptr<Desktop> Composition::pictureDesktop(const PictureOptions&, std::ostream&) { failWithoutWindows(); }
#endif

}  // namespace tarnel
