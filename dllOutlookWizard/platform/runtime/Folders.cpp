#include "Folders.h"

#include <cstdlib>

namespace tarnel::folders {
namespace {

std::filesystem::path under(const char* variable, const char* fallback) {
  const char* base = std::getenv(variable);
  // A relative base is invalid and counts as unset.
  if (base && std::filesystem::path(base).is_absolute()) return std::filesystem::path(base) / "tarnel";
  const char* home = std::getenv("HOME");
  return std::filesystem::path(home ? home : "/") / fallback / "tarnel";
}

}  // namespace

std::filesystem::path config() { return under("XDG_CONFIG_HOME", ".config"); }
std::filesystem::path data() { return under("XDG_DATA_HOME", ".local/share"); }
std::filesystem::path registry() { return config() / "registry"; }
std::filesystem::path state() { return under("XDG_STATE_HOME", ".local/state"); }

}  // namespace tarnel::folders
