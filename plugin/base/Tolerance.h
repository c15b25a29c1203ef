// Comparisons of lengths, diameters and angles that do not stumble over the last digits of a calculation.
#pragma once

#include "plugin/base/ZpExport.h"

namespace ZP {

// Far below what a catalogue distinguishes (0.001), far above what arithmetic on drawing coordinates leaves.
constexpr double kTolerance = 1e-6;

// All of them are false when a or b is not a number. Equal infinities are equal.
ZP_EXPORT bool IsEqual(double a, double b, double tolerance); // |a - b| <= tolerance
ZP_EXPORT bool Greater(double a, double b);                   // a - b > kTolerance
ZP_EXPORT bool Less(double a, double b);                      // b - a > kTolerance
ZP_EXPORT bool GreaterOrEqual(double a, double b);            // not Less
ZP_EXPORT bool LessOrEqual(double a, double b);               // not Greater

} // namespace ZP
