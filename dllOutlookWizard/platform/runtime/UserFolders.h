#pragma once

#include <filesystem>

namespace tarnel {

// Where a program of this name keeps what is its user's, after the XDG base directory rules: each folder is
// <base>/tarnel and is not created here.
namespace userFolders {
std::filesystem::path config();
std::filesystem::path data();
std::filesystem::path state();
// The file that holds the user's registry.
std::filesystem::path registry();
}  // namespace userFolders

}  // namespace tarnel
