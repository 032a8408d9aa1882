#include "Platform.h"

#include <cassert>
#include <optional>

namespace tarnel {
namespace {

// An optional can't be assigned here: Platform holds references.
std::optional<Platform>& installed() {
  thread_local std::optional<Platform> platform;
  return platform;
}

}  // namespace

const Platform& platform() {
  assert(installed());
  return *installed();
}

bool platformIsInstalled() { return installed().has_value(); }

void installPlatform(Platform platform) { installed().emplace(std::move(platform)); }

void removePlatform() { installed().reset(); }

}  // namespace tarnel
