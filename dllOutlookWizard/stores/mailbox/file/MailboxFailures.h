#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "Connection.h"

namespace tarnel::mailbox {

// Failure 440 about a mailbox: what went wrong and what to do.
[[noreturn]] void failMailbox(const std::filesystem::path& path, const std::string& problem, const std::string& advice);
[[noreturn]] void failCreation(const std::filesystem::path& path, const std::string& reason);
[[noreturn]] void failDisk(const std::filesystem::path& path, const std::string& told);
[[noreturn]] void failNewerVersion(const std::filesystem::path& path, std::int64_t version);
[[noreturn]] void failOutOfReach(const std::filesystem::path& path);
// A file that the engine takes for sound, and yet it lacks what every mailbox has.
[[noreturn]] void failDamaged(const std::filesystem::path& path);
// What the engine refused, in words for the mailbox's user.
[[noreturn]] void failRefused(const std::filesystem::path& path, const sqlite::Refusal& refusal);

}  // namespace tarnel::mailbox
