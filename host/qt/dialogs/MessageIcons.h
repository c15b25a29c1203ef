// The signs of message boxes, drawn here so that they are sharp at any scale.
#pragma once

#include <QMessageBox>
#include <QPixmap>

namespace desktop {

// Null for a box without one. ratio: pixels of the screen per pixel at 96 dpi.
QPixmap MessageIcon(QMessageBox::Icon icon, double ratio);

} // namespace desktop
