#pragma once

#include <filesystem>

namespace tarnel::mailbox {

// Makes an empty mailbox, whole or not at all. Failure when something of that name exists already (it is left as it
// is), when a removed one left a log with changes there, or when the folder is missing or can't be written.
void createMailbox(const std::filesystem::path& path);
// Makes an empty mailbox, with the folders on the way to it, unless something of that name is there.
void makeSureOfMailbox(const std::filesystem::path& path);

// Looks at the file from outside, without the engine, so that nothing that is no sound mailbox of ours is ever opened
// for writing. Failure when it is missing, unreadable, write-protected (or its folder is), no mailbox, cut short, or
// of a newer version; the text names the file and says what to do.
void inspectMailbox(const std::filesystem::path& path);

std::filesystem::path folderOf(const std::filesystem::path& path);
// Failure when the mailbox, or the folder that its log is in, takes no writes.
void requireWritableFile(const std::filesystem::path& path);
void requireWritableFolder(const std::filesystem::path& path, const std::filesystem::path& folder);

}  // namespace tarnel::mailbox
