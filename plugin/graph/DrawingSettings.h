// The settings of the working drawing that the whole package goes by. They are kept in the drawing itself, so
// that they survive saving and reopening in every version; a drawing without them, or none at all, has the
// defaults. docs/formats/extended_data.md tells where they stand.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace ZP {

// A setter gives false, and changes nothing, for a value that is no number, infinite, 0 or negative, and when
// the drawing can't be written to.

// The N of the plot's scale 1:N. Default 100.
ZP_EXPORT double GetOutDwgScale();
ZP_EXPORT bool SetOutDwgScale(double scale);

// The N of the scale 1:N in which the drawing is drawn. Default 1: one drawing unit is one millimetre.
ZP_EXPORT double GetDrawingScale();
ZP_EXPORT bool SetDrawingScale(double scale);

// Heights of Chinese and Western text on paper, mm. Defaults 3.5 and 3.
ZP_EXPORT double GetZwZg();
ZP_EXPORT bool SetZwZg(double height);
ZP_EXPORT double GetXwZg();
ZP_EXPORT bool SetXwZg(double height);

// The name of the current text style; the drawing may lack it. Default the drawing's own current style. False
// for the empty name.
ZP_EXPORT CString GetTextStyle();
ZP_EXPORT bool SetTextStyle(const CString& name);

// 0: the host's current font; 1, the default: the package's own text style. The setter gives non-zero on
// success, 0 for any other number.
ZP_EXPORT int GetFontType();
ZP_EXPORT int SetFontType(int type);

} // namespace ZP
