// Pictures from files of the installation, SVG among them, and from texts that are SVG themselves.
#pragma once

#include "host/afx/CString.h"

#include <QPixmap>

namespace desktop {

// Within the size, as large as its proportions allow, for a screen of this ratio. Null where it can't be
// read. A text that begins with "<svg" is the picture itself.
QPixmap ReadPicture(const CString& picture, const QSize& within, double ratio = 1);

} // namespace desktop
