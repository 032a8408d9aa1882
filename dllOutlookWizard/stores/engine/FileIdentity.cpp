#include "FileIdentity.h"

#include <sys/stat.h>

namespace tarnel::sqlite {
namespace {
std::int64_t nanoseconds(const timespec& moment) {
  return moment.tv_sec * std::int64_t{1'000'000'000} + moment.tv_nsec;
}
}  // namespace

FileIdentity FileIdentity::of(const std::filesystem::path& path) { return FileState::of(path).identity; }

FileState FileState::of(const std::filesystem::path& path) {
  struct stat found {};
  if (stat(path.c_str(), &found) != 0) return {};
  return {{found.st_dev, found.st_ino}, found.st_size, nanoseconds(found.st_mtim), nanoseconds(found.st_ctim)};
}

}  // namespace tarnel::sqlite
