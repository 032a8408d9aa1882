#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

// The root keys' own numbers.
namespace rootKey {
inline constexpr std::uint32_t classesRoot = 0x80000000;
inline constexpr std::uint32_t currentUser = 0x80000001;
}  // namespace rootKey

// A view of the registry below one root key. Holds no open key between two operations. An empty key name where one is
// needed fails with 0x80044651; any other failure, such as a registry that can't be read, with 0x80044653.
class CRegistry {
 public:
  void Init(std::uint32_t RootKey) { root_ = RootKey; }

  // A root key that is not one of the above has no keys.
  bool KeyExists(std::string_view KeyName) const;
  // The names of the keys directly below into `Names`, each cut at its first null character, in the registry's own
  // order; their count. An empty key name means the root itself; of a missing key there are none.
  std::int32_t GetAllSubKeys(std::string_view KeyName, std::vector<std::string>& Names) const;

  // Where a key below a root key lies in the runtime's registry.
  static std::string pathOf(std::uint32_t RootKey, std::string_view KeyName);

 private:
  std::uint32_t root_ = rootKey::classesRoot;
};

}  // namespace tarnel
