#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarnel {

// The bytes of an HTML file. Failure 53 when there is none, 75 when it can't be read or is larger than 32 MB, which no
// page for people is; each names the file.
std::string readHtmlFile(const std::filesystem::path& file);

// `text` as it must be written in HTML to be read as it is.
std::string htmlText(std::string_view text);

}  // namespace tarnel
