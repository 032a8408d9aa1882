#pragma once

#include <filesystem>
#include <string>

#include "Clock.h"
#include "Desktop.h"
#include "Locale.h"
#include "Provider.h"
#include "Registry.h"

namespace tarnel {

namespace outlook {
class ClassFactory;
}

// The host's own library for work on whole projects; one call of it is all that the wizard makes. What the library
// would be given besides is the same each time, a list of empty texts and the number 25, and stays with whoever calls a
// real one.
class TarnelUtilities {
 public:
  enum class Code : std::int32_t { makeOutlookProject = 100, endOutlookProject = 200 };

  virtual ~TarnelUtilities() = default;
  virtual void run(Code code, const std::string& first, const std::string& second) = 0;
};

// The host's own library for unforeseen failures: tells the user and comes back.
class TarnelErrReport {
 public:
  virtual ~TarnelErrReport() = default;
  virtual void report(const FailureReport& failure) = 0;
};

// All that the logic calls on and does not do itself. Installed once by whoever puts the program together, who owns
// the parts and keeps them until the last form is gone.
struct Platform {
  Desktop& desktop;
  Clock& clock;
  Locale locale;
  Registry& registry;
  ado::Provider& database;
  outlook::ClassFactory& outlook;
  TarnelErrReport& errorReport;
  TarnelUtilities& utilities;
  std::filesystem::path applicationFolder;
  // The file that is Outlook's mailbox whatever profile is chosen; empty where the profile decides.
  std::filesystem::path mailbox{};
};

// The platform of this thread. Using it before it was installed is a mistake of ours.
const Platform& platform();
bool platformIsInstalled();
void installPlatform(Platform platform);
void removePlatform();

}  // namespace tarnel
