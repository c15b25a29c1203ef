// How long a curve of a drawing is.
#pragma once

#include <optional>

class AcDbCurve;

namespace ZP {

// In drawing units, closing segments included. Nothing for a curve whose geometry is none, and for a class
// that tells no geometry.
std::optional<double> CurveLength(const AcDbCurve& curve);

} // namespace ZP
