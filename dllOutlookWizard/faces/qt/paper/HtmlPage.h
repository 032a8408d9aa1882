#pragma once

#include <QString>
#include <QUrl>
#include <QVariant>
#include <filesystem>
#include <string>

namespace tarnel::qt {

// The characters of a page, in the encoding that it names; UTF-8 where it names none.
QString decodedHtml(const std::string& bytes);

// A picture that a page names, as an image; an invalid value when it does not lie in `folder` or below it, or is none.
// One whose name ends in "@2x" has two pixels to each of the page.
QVariant pagePicture(const QUrl& name, const std::filesystem::path& folder);

// A style sheet that a page names, as its text; an invalid value when it does not lie in `folder` or below it, or can't
// be read.
QVariant pageStyle(const QUrl& name, const std::filesystem::path& folder);

}  // namespace tarnel::qt
