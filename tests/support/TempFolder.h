#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarnel::test {

// A folder of its own, gone with all that is in it at the end.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tarnel-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no folder could be made: " + name);
    path_ = name;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }
  std::filesystem::path write(std::string_view name, std::string_view contents) const {
    std::ofstream file(path_ / name, std::ios::binary);
    file << contents;
    if (!file.flush()) throw std::runtime_error("could not be written: " + (path_ / name).string());
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

// The bytes of a file; empty when there is none.
inline std::string contentsOf(const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file)) return {};
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tarnel::test
