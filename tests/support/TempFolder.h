#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnel::test {

// A folder of its own, gone with all that is in it at the end.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
  std::filesystem::path write(std::string_view name, std::string_view contents) const;

 private:
  std::filesystem::path path_;
};

// The bytes of a file; empty when there is none.
std::string contentsOf(const std::filesystem::path& file);

}  // namespace tarnel::test
