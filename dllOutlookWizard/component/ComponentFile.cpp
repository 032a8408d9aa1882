#include "ComponentFile.h"

#include <dlfcn.h>

namespace tarnel {
namespace {

std::filesystem::path locate() {
  Dl_info info{};
  std::error_code error;
  if (dladdr(reinterpret_cast<void*>(&componentFile), &info) == 0) return {};
  const std::filesystem::path file = std::filesystem::canonical(info.dli_fname, error);
  return error ? std::filesystem::path(info.dli_fname) : file;
}

// Found while it is loaded: the loader may know it by a path that counts from the working folder.
const std::filesystem::path ownFile = locate();

}  // namespace

const std::filesystem::path& componentFile() { return ownFile; }

}  // namespace tarnel
