#include "FileIdentity.h"

#include <sys/stat.h>

namespace tarnel::sqlite {

FileIdentity FileIdentity::of(const std::filesystem::path& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return {};
  return {found.st_dev, found.st_ino};
}

}  // namespace tarnel::sqlite
