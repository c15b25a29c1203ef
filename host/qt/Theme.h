// Colours and fonts of the window, and what of them the user may choose.
#pragma once

#include <QColor>
#include <QString>

class QApplication;

namespace desktop {

struct CanvasColors {
  QColor background;
  QColor foreground;
  QColor window;   // of a selection from left to right
  QColor crossing; // from right to left
  QColor selected;
  QColor snap;
  QColor rubber;
};
CanvasColors DarkCanvas();
CanvasColors LightCanvas();

// Fusion with the application's own palette, and a font that has Chinese glyphs.
void ApplyTheme(QApplication& application);
// Of the command line and coordinates.
QString MonospaceFamily();

} // namespace desktop
