#include "UserFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace tarnel::userFolders {
namespace {

bool isFolder(const char* path) { return path && std::filesystem::path(path).is_absolute(); }

// Where HOME says nothing of use, as in some services, the system knows.
std::filesystem::path home() {
  if (const char* named = std::getenv("HOME"); isFolder(named)) return named;
  const passwd* user = getpwuid(getuid());
  return user && isFolder(user->pw_dir) ? user->pw_dir : "/";
}

std::filesystem::path under(const char* variable, const char* fallback) {
  const char* base = std::getenv(variable);
  // A relative base is invalid and counts as unset.
  if (isFolder(base)) return std::filesystem::path(base) / "tarnel";
  return home() / fallback / "tarnel";
}

}  // namespace

std::filesystem::path config() { return under("XDG_CONFIG_HOME", ".config"); }
std::filesystem::path data() { return under("XDG_DATA_HOME", ".local/share"); }
std::filesystem::path registry() { return config() / "registry"; }
std::filesystem::path state() { return under("XDG_STATE_HOME", ".local/state"); }

}  // namespace tarnel::userFolders
