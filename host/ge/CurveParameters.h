// Places on a curve by parameter, by distance along it and by point. A line counts its parameter from 0 to
// its length; an arc from its start angle to start angle plus sweep; a circle from 0 to 2 pi; a polyline by
// vertex index plus the fraction, by length, of the segment. A closed curve has one place with two
// parameters: its start, and that is the one returned for a point.
#pragma once

#include "host/ge/Curve.h"

namespace ge {

// A piece of the curve and a fraction of it.
struct CurvePlace {
  std::size_t piece = 0;
  double fraction = 0.0;
};

CurveResult<AcGePoint3d> StartPoint(const Curve& curve);
// For a closed curve the start point.
CurveResult<AcGePoint3d> EndPoint(const Curve& curve);
CurveResult<double> StartParameter(const Curve& curve);
CurveResult<double> EndParameter(const Curve& curve);
CurveResult<double> Length(const Curve& curve);

// A parameter or distance that misses the range by less than the tolerance, measured along the curve, is
// taken for the end; beyond that it is kOutOfRange.
CurveResult<AcGePoint3d> PointAtParameter(const Curve& curve, double parameter);
CurveResult<AcGePoint3d> PointAtDistance(const Curve& curve, double distance);
CurveResult<double> DistanceAtParameter(const Curve& curve, double parameter);
CurveResult<double> ParameterAtDistance(const Curve& curve, double distance);
// kNotOnCurve for a point farther away than the tolerance. Where the curve meets itself the first place
// counts.
CurveResult<double> ParameterAtPoint(const Curve& curve, const AcGePoint3d& point);
CurveResult<double> DistanceAtPoint(const Curve& curve, const AcGePoint3d& point);
// By the parameter: of unit length for a line, as long as the radius for an arc, as the segment for a
// polyline. At a vertex of a polyline that of the segment that begins there. kDegenerate on a segment without
// a length.
CurveResult<AcGeVector3d> FirstDerivative(const Curve& curve, double parameter);

// Between parameters and places, for the operations that work piece by piece.
CurveResult<CurvePlace> PlaceAtParameter(const Curve& curve, double parameter);
CurveResult<CurvePlace> PlaceAtDistance(const Curve& curve, double distance);
// Also for the fraction of an extension; the parameter then lies outside the range.
double ParameterOf(const Curve& curve, const CurvePlace& place);
double DistanceOf(const Curve& curve, const CurvePlace& place);

} // namespace ge
