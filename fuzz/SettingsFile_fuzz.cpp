#include "Input.h"
#include "SettingsFile.h"
#include "TempFolder.h"

using namespace tarnel;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TempFolder folder;
  const std::string text(reinterpret_cast<const char*>(data), size);
  folder.write("TarnelSettings.txt", text);
  const SettingsFile file(folder.path());
  std::string path;
  if (!fuzz::answered([&] { path = file.databasePath(); })) {
    fuzz::require(test::contentsOf(folder / "TarnelSettings.txt") == text, "reading leaves the file as it is");
    return 0;
  }
  if (path.find("</DBLoc>") != std::string::npos) return 0;
  file.write(path);
  fuzz::require(file.databasePath() == path, "a path reads back as it was written");
  return 0;
}
