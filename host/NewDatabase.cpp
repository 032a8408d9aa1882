#include "NewDatabase.h"

#include "CCreateGuid.h"
#include "DemoScript.h"
#include "Failure.h"
#include "Folders.h"
#include "TaskDatabaseScript.h"
#include "createDatabase.h"

namespace tarnel::host {

std::filesystem::path defaultDatabase() { return folders::data() / "TarnelData.db"; }

void newDatabase(const std::filesystem::path& file, bool demo, Date today) {
  const std::filesystem::path whole = std::filesystem::absolute(file);
  std::error_code error;
  std::filesystem::create_directories(whole.parent_path(), error);
  if (error)
    throw Failure(failure::pathAccess, "The folder \"" + whole.parent_path().string() +
                                           "\" can't be made: " + error.message() + ". Name a file in another folder.");
  std::string script = taskDatabaseScript();
  if (demo) script += demoScript(demoContents(today, GetANewGuid));
  sqlite::createDatabase(whole, script);
}

}  // namespace tarnel::host
