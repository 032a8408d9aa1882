#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace tarnel {

// Gives a file new contents, whole or not at all: they are on disk when this returns without an error, and after one
// the file is as it was. A file that is there keeps its permissions, a new one is its owner's alone; where the path is
// a link, the file that it leads to is replaced.
std::error_code replaceFile(const std::filesystem::path& file, std::string_view contents);

// Makes an empty file beside `target`, with a name that nothing else has, for what is to take its place. Tasks and
// appointments are nobody else's business: it can be read and written by its owner alone.
std::filesystem::path newFileBeside(const std::filesystem::path& target, std::error_code& error);

}  // namespace tarnel
