#pragma once

#include <filesystem>

namespace tarnel {

// Where a program of this name keeps what is its user's, after the XDG base directory rules: each folder is
// <base>/tarnel and is not created here.
namespace folders {
std::filesystem::path config();
std::filesystem::path data();
std::filesystem::path state();
}  // namespace folders

}  // namespace tarnel
