#pragma once

#include <QFont>
#include <QString>
#include <string>

namespace tarnel::qt {

inline QString text(const std::string& utf8) { return QString::fromStdString(utf8); }

// The font of all texts on a form. Places are given in twips whatever the desktop's font size, so its family
// follows the desktop and its size does not; the screen's scale enlarges both.
QFont formFont();

// On one line, cut where nobody reads on: line ends, tabs and other control characters become blanks.
QString oneLine(const std::string& utf8);
// What a check row shows: as oneLine, with "&&" as "&" and a single "&" as it is.
QString rowCaption(const std::string& utf8);

// A tool tip that shows `plain` as it is, in lines of a readable length and cut when it is endless.
QString toolTip(const QString& plain);

}  // namespace tarnel::qt
