#pragma once

#include <filesystem>
#include <string>

namespace tarnel {

// TarnelSettings.txt, which says where the database lies: five lines, each ended by CR LF, the path between a line
// "<DBLoc>" and a line "</DBLoc>". Plain line ends are read, too.
class SettingsFile {
 public:
  explicit SettingsFile(const std::filesystem::path& folder) : path_(folder / "TarnelSettings.txt") {}

  bool exists() const;
  // Failure 53 when it can't be read, 5 when its tags are missing.
  std::string databasePath() const;
  // Takes the place of the file that is there. Failure 75 when it can't be written.
  void write(const std::string& databasePath) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tarnel
