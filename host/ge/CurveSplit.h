// Parts of a curve, and the curve run through the other way.
#pragma once

#include "host/ge/CurveParameters.h"

namespace ge {

// The pieces between the parameters, in the order of the curve. Parameters may come in any order; those that
// coincide within the tolerance count once, those at the ends of an open curve not at all. An open curve
// gives one piece more than there are cuts, without a cut itself. A closed one gives as many open pieces as
// cuts, the last of them through the curve's start; without a cut itself. kOutOfRange, and nothing is split,
// when any parameter is beyond the range.
CurveResult<std::vector<Curve>> SplitAtParameters(const Curve& curve, std::span<const double> parameters);

// The open curve from one place to a later one; from a place to an earlier one through the start of a closed
// curve. A circle gives an arc. kDegenerate where nothing lies between on an open curve, the whole way round
// on a closed one.
CurveResult<Curve> PartBetween(const Curve& curve, const CurvePlace& from, const CurvePlace& to);

// An arc and a circle turn their normal over, since they run counter-clockwise about it; a polyline keeps its
// normal and changes the signs of its bulges.
CurveResult<Curve> Reversed(const Curve& curve);

} // namespace ge
