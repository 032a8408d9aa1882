#pragma once

#include <filesystem>
#include <string>

#include "FileIdentity.h"

namespace tarnel::mailbox {

using sqlite::FileIdentity;

// Makes an empty mailbox, whole or not at all. Failure when something of that name exists already (it is left as it
// is), or when the folder is missing or can't be written.
void createMailbox(const std::filesystem::path& path);
// Makes an empty mailbox, with the folders on the way to it, unless something of that name is there.
void makeSureOfMailbox(const std::filesystem::path& path);

// Looks at the file from outside, without the engine, so that nothing that is no sound mailbox of ours is ever opened
// for writing. Failure when it is missing, unreadable, write-protected (or its folder is), no mailbox, cut short, or
// of a newer version; the text names the file and says what to do.
void inspectMailbox(const std::filesystem::path& path);

std::filesystem::path folderOf(const std::filesystem::path& path);
// Failure when the mailbox, or the folder that its log stands in, takes no writes.
void requireWritableFile(const std::filesystem::path& path);
void requireWritableFolder(const std::filesystem::path& path, const std::filesystem::path& folder);
[[noreturn]] void failOutOfReach(const std::filesystem::path& path);

// Failure 440 about a mailbox: what went wrong and what to do.
[[noreturn]] void failMailbox(const std::filesystem::path& path, const std::string& problem, const std::string& advice);
[[noreturn]] void failDisk(const std::filesystem::path& path, const std::string& told);
[[noreturn]] void failNewerVersion(const std::filesystem::path& path, std::int64_t version);

}  // namespace tarnel::mailbox
