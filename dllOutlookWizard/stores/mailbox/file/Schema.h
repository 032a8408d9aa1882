#pragma once

#include <cstdint>
#include <string>

namespace tarnel::mailbox::schema {

// "TnMb": marks an SQLite file as one of our mailboxes.
inline constexpr std::int32_t applicationId = 0x546E4D62;
// The layout that this program reads and writes. A file of a later one is left alone.
inline constexpr std::int32_t version = 1;

// The statements that lay out an empty mailbox.
std::string creation();

}  // namespace tarnel::mailbox::schema
