#pragma once

#include <QIcon>
#include <QRectF>
#include <string>

class QPainter;

namespace tarnel::qt {

// Draws the picture of this key, "Tarnel", "OUTLOOK", "CHECK", "print" or "preview", as large as `place`, sharp at
// every scale. Its own colours are easy to see on light and dark grounds. Draws nothing for any other key.
void paintPicture(QPainter& painter, const QRectF& place, const std::string& key);

// The same for a menu; no icon for a key without a picture. What is disabled or selected is toned by the style.
QIcon pictureIcon(const std::string& key);

// What the picture on a row says, for who doesn't see it; empty for one that says nothing.
QString pictureWords(const std::string& key);

// A check mark in the painter's own pen.
void paintTick(QPainter& painter, const QRectF& place);

}  // namespace tarnel::qt
