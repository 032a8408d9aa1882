#include "TempFolder.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tarnel::test {

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "tarnel-test-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no folder could be made: " + name);
  path_ = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempFolder::write(std::string_view name, std::string_view contents) const {
  std::ofstream file(path_ / name, std::ios::binary);
  file << contents;
  if (!file.flush()) throw std::runtime_error("could not be written: " + (path_ / name).string());
  return path_ / name;
}

std::string contentsOf(const std::filesystem::path& file) {
  if (!std::filesystem::is_regular_file(file)) return {};
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace tarnel::test
