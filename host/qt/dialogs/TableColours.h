// The colours of tables, for cells and headings alike.
#pragma once

#include <QColor>

namespace desktop {

inline const QColor kHeadingColour(233, 236, 240);
inline const QColor kReadOnlyColour(246, 247, 249);
inline const QColor kSelectedColour(214, 230, 248);
inline const QColor kFocusColour(176, 208, 242);
inline const QColor kGridColour(200, 204, 210);

} // namespace desktop
