#include "ReplaceFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

std::error_code lastError() { return {errno, std::generic_category()}; }

std::error_code writeAll(int file, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t written = write(file, contents.data(), contents.size());
    if (written < 0 && errno != EINTR) return lastError();
    if (written > 0) contents.remove_prefix(static_cast<std::size_t>(written));
  }
  return fsync(file) == 0 ? std::error_code() : lastError();
}

std::error_code fill(const fs::path& file, std::string_view contents, const struct stat* like) {
  const int opened = open(file.c_str(), O_WRONLY | O_CLOEXEC);
  if (opened < 0) return lastError();
  std::error_code error;
  if (like && fchmod(opened, like->st_mode & 07777) != 0) error = lastError();
  if (!error) error = writeAll(opened, contents);
  if (close(opened) != 0 && !error) error = lastError();
  return error;
}

// A renaming is on disk once its folder is. Some file systems can't be asked to do that.
void settle(const fs::path& folder) {
  const int opened = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

}  // namespace

fs::path newFileBeside(const fs::path& target, std::error_code& error) {
  std::random_device random;
  fs::path file = target;
  file += "." + std::to_string(random()) + std::to_string(random()) + ".new";
  const int made = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  error = made < 0 ? lastError() : std::error_code();
  if (made >= 0) close(made);
  return file;
}

std::error_code replaceFile(const fs::path& file, std::string_view contents) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(file, error);
  if (error) return error;
  struct stat old {};
  const bool isThere = stat(target.c_str(), &old) == 0;
  // A device or a pipe is nothing to put a file in the place of.
  if (isThere && !S_ISREG(old.st_mode)) return std::make_error_code(std::errc::not_supported);
  const fs::path next = newFileBeside(target, error);
  if (error) return error;
  error = fill(next, contents, isThere ? &old : nullptr);
  if (!error && rename(next.c_str(), target.c_str()) != 0) error = lastError();
  if (error)
    unlink(next.c_str());
  else
    settle(target.parent_path());
  return error;
}

}  // namespace tarnel
