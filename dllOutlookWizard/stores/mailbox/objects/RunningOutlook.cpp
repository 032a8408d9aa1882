#include "RunningOutlook.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "FileIdentity.h"

namespace tarnel::mailbox {
namespace {

// Someone who only looks holds a shared lock for a moment; a start that meets it tries again.
constexpr int attempts = 100;

std::filesystem::path markOf(const std::filesystem::path& mailbox) { return mailbox.string() + ".running"; }

// Whether the path still leads to the file that was opened: an ending Outlook may have removed it in between.
bool isStillThere(const std::filesystem::path& mark, int file) {
  struct stat opened {};
  return fstat(file, &opened) == 0 &&
         sqlite::FileIdentity::of(mark) == sqlite::FileIdentity{opened.st_dev, opened.st_ino};
}

bool isHeld(int file) {
  if (flock(file, LOCK_SH | LOCK_NB) != 0) return true;
  flock(file, LOCK_UN);
  return false;
}

}  // namespace

std::unique_ptr<RunningOutlook> RunningOutlook::start(const std::filesystem::path& defaultMailbox,
                                                      const std::string& profile) {
  const std::filesystem::path mark = markOf(defaultMailbox);
  for (int attempt = 0; attempt < attempts; ++attempt) {
    const int file = open(mark.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0) return nullptr;
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && isStillThere(mark, file)) {
      auto running = std::make_unique<RunningOutlook>(mark, file);
      running->setProfile(profile);
      return running;
    }
    const bool held = isHeld(file) && isStillThere(mark, file);
    close(file);
    if (held) return nullptr;
  }
  return nullptr;
}

std::optional<std::string> RunningOutlook::profile(const std::filesystem::path& defaultMailbox) {
  const int file = open(markOf(defaultMailbox).c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  std::optional<std::string> name;
  if (isHeld(file)) {
    std::array<char, 1024> text{};
    const ssize_t size = pread(file, text.data(), text.size(), 0);
    name.emplace(text.data(), size > 0 ? static_cast<std::size_t>(size) : 0);
  }
  close(file);
  return name;
}

RunningOutlook::~RunningOutlook() {
  unlink(mark_.c_str());
  close(file_);
}

void RunningOutlook::setProfile(const std::string& profile) {
  // Without the name others log on to the default profile, which is all that a full disk can cost here.
  if (ftruncate(file_, 0) == 0 && pwrite(file_, profile.data(), profile.size(), 0) < 0) {
    [[maybe_unused]] const int emptied = ftruncate(file_, 0);
  }
}

}  // namespace tarnel::mailbox
