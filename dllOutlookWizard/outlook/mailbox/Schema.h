#pragma once

#include <cstdint>

namespace tarnel::mailbox::schema {

// "TnMb": marks an SQLite file as one of our mailboxes.
inline constexpr std::int32_t applicationId = 0x546E4D62;
// The layout that this program reads and writes. A file of a later one is left alone.
inline constexpr std::int32_t version = 1;

// Numbers of the folders: Outlook's own (OlDefaultFolders).
inline constexpr std::int64_t deletedItems = 3;
inline constexpr std::int64_t calendar = 9;
inline constexpr std::int64_t tasks = 13;

// MAPI gives named properties the ids from here up to 0xFFFE.
inline constexpr std::int64_t firstNameId = 0x8000;
inline constexpr std::int64_t lastNameId = 0xFFFE;

// The statements that lay out an empty mailbox.
const char* creation();

}  // namespace tarnel::mailbox::schema
