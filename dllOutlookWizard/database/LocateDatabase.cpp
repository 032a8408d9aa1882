#include "LocateDatabase.h"

#include <filesystem>
#include <string>

#include "ConnectionString.h"
#include "Platform.h"
#include "SettingsFile.h"
#include "m_OutlookWizard.h"

namespace tarnel {
namespace {

constexpr int mostTries = 2;

void tellOfMissingDatabase(const std::string& path, const std::string& folder) {
  tellUserOfFailure(
      "The Tarnel data file, \"" + path +
      "\", could not be found.\r\nWithout this file, Tarnel cannot work.\r\n\r\nTarnel will now check in " + folder +
      " in hopes of locating the originally installed datafile (TarnelData.mdb).");
}

void tellOfMissingSettings(const std::string& folder) {
  tellUserOfFailure("The Tarnel settings file, \"TarnelSettings.txt\", could not be found in (\"" + folder +
                    "\" ).\r\nWithout this file, Tarnel cannot determine where its database resides. Please find this "
                    "file and put it back!");
}

bool locate(const std::filesystem::path& folder) {
  const SettingsFile settings(folder);
  const std::string defaultPath = (folder / "TarnelData.mdb").string();
  for (int failedTries = 0; failedTries < mostTries; ++failedTries) {
    if (!settings.exists()) settings.write(defaultPath);
    const std::string path = settings.databasePath();
    if (std::filesystem::is_regular_file(path)) {
      session().theszConnect = "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + ado::connectionValue(path) + ";";
      return true;
    }
    tellOfMissingDatabase(path, folder.string());
    settings.write(defaultPath);
  }
  return false;
}

}  // namespace

bool LocateDatabase() {
  const std::filesystem::path& folder = platform().applicationFolder;
  try {
    return locate(folder);
  } catch (const std::exception&) {
    tellOfMissingSettings(folder.string());
    return false;
  }
}

}  // namespace tarnel
