#pragma once

#include <cstdint>

// Numbers of the mailbox's folders: Outlook's own (OlDefaultFolders).
namespace tarnel::mailbox::folderId {

inline constexpr std::int64_t deletedItems = 3;
inline constexpr std::int64_t calendar = 9;
inline constexpr std::int64_t tasks = 13;

}  // namespace tarnel::mailbox::folderId
