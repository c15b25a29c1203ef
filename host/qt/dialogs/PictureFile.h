// Pictures from files of the installation, SVG among them.
#pragma once

#include "host/afx/CString.h"

#include <QPixmap>

namespace desktop {

// Within the size, as large as its proportions allow, for a screen of this ratio. Null where the file can't
// be read.
QPixmap ReadPicture(const CString& file, const QSize& within, double ratio = 1);

} // namespace desktop
