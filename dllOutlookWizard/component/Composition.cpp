#include "Composition.h"

#include "FileRegistry.h"
#include "OutlookFactory.h"
#include "SqliteProvider.h"
#include "SystemClock.h"
#include "UserFolders.h"
#include "frmOutWiz.h"
#include "m_OutlookWizard.h"

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
  FileRegistry registry{userFolders::registry()};
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
Registry& Composition::registry() { return parts_->registry; }

void Composition::install(Desktop& desktop, TarnelErrReport& errorReport, TarnelUtilities& utilities,
                          std::filesystem::path applicationFolder, std::filesystem::path mailbox) {
  installPlatform({.desktop = desktop,
                   .clock = parts_->clock,
                   .locale = parts_->locale,
                   .registry = parts_->registry,
                   .database = parts_->database,
                   .outlook = parts_->outlook,
                   .errorReport = errorReport,
                   .utilities = utilities,
                   .applicationFolder = std::move(applicationFolder),
                   .mailbox = std::move(mailbox)});
}

std::unique_ptr<script::ScriptDesktop> Composition::scriptDesktop(std::istream& commands, std::ostream& facts) {
  auto desktop = std::make_unique<script::ScriptDesktop>(commands, facts);
  desktop->setSizes(sizesOf);
  addDocuments(*desktop);
  return desktop;
}

}  // namespace tarnel
