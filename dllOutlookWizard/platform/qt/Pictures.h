#pragma once

#include <QRectF>
#include <string>

class QPainter;

namespace tarnel::qt {

// Draws the picture of this key, "Tarnel", "OUTLOOK" or "CHECK", as large as `place`, sharp at every scale. Its own
// colours stand out on light and dark grounds. Draws nothing for any other key.
void paintPicture(QPainter& painter, const QRectF& place, const std::string& key);

// A check mark in the painter's own pen.
void paintTick(QPainter& painter, const QRectF& place);

}  // namespace tarnel::qt
