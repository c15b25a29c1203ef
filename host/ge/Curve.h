// A line, arc, circle or polyline with bulges as a value: where it lies, of which pieces it is made. What can
// be asked of it stands in the headers named Curve...; docs/geometry.md lists them.
#pragma once

#include "host/ge/CurveFrame.h"
#include "host/ge/CurvePiece.h"
#include "host/ge/CurveStatus.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ge {

enum class CurveKind { kLine, kArc, kCircle, kPolyline };

struct PolylineVertex {
  AcGePoint2d point;  // in the object coordinates of the polyline's normal
  double bulge = 0.0; // of the segment that begins here; of no account at the last vertex of an open one
};

class Curve {
 public:
  // The line from the origin to itself.
  Curve() : Curve(Line({}, {})) {}

  // Points and centres are world coordinates, angles radians. Nothing is refused here: a curve made of
  // numbers that make none keeps a status other than kOk, and every operation on it returns that status.
  static Curve Line(const AcGePoint3d& start, const AcGePoint3d& end);
  // Counter-clockwise about the normal, angles from the x axis of its object coordinate system. Equal angles
  // make a full turn. A radius below 0 is kDegenerate, a radius of 0 is a point.
  static Curve Arc(const AcGePoint3d& center, const AcGeVector3d& normal, double radius, double startAngle,
                   double endAngle);
  static Curve Circle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius);
  // Without a vertex it is kDegenerate, with one it is a point.
  static Curve Polyline(std::span<const PolylineVertex> vertices, bool closed,
                        const AcGeVector3d& normal = AcGeVector3d::kZAxis, double elevation = 0.0);
  // For operations that have the parts: arcs and circles run counter-clockwise in their frame and are one
  // piece, polylines one or more that follow one another.
  static Curve OfPieces(CurveKind kind, const CurveFrame& frame, std::vector<CurvePiece> pieces, bool closed);

  CurveStatus Status() const { return m_status; }
  CurveKind Kind() const { return m_kind; }
  // A circle, an arc of a full turn, a polyline marked as closed. One whose ends merely meet is open.
  bool IsClosed() const;
  const CurveFrame& Frame() const { return m_frame; }
  // At least one, unless the status is kDegenerate or kNotFinite. A polyline has one for each segment.
  std::span<const CurvePiece> Pieces() const;
  // The piece's ends in the world; those of a line exactly as given.
  AcGePoint3d PieceStart(std::size_t index) const;
  AcGePoint3d PieceEnd(std::size_t index) const;
  AcGePoint3d PieceWorldPoint(std::size_t index, double fraction) const;
  // Rounding included: see CurveTolerance.
  double Tolerance() const;
  // The extents in plane coordinates.
  const Box2d& Box() const { return m_box; }

  // What an entity stores, to be read back after an operation. Arcs and circles only, 0 otherwise:
  AcGePoint3d Center() const;
  double Radius() const;
  double StartAngle() const; // in [0, 2 pi)
  double EndAngle() const;   // in [0, 2 pi)
  // Polylines only, empty otherwise.
  std::vector<PolylineVertex> Vertices() const;
  // All but lines, for which the plane is one of many.
  AcGeVector3d Normal() const { return m_frame.normal; }
  double Elevation() const { return m_frame.Elevation(); }

 private:
  explicit Curve(CurveKind kind) : m_kind(kind) {}
  void Measure();

  CurveKind m_kind;
  CurveStatus m_status = CurveStatus::kOk;
  bool m_closed = false;
  bool m_lone = false; // a polyline of a single vertex, which has a piece but no segment
  CurveFrame m_frame;
  AcGePoint3d m_start; // of a line, as given
  AcGePoint3d m_end;
  Box2d m_box;
  double m_magnitude = 0.0;
  CurvePiece m_only;                // the one piece, so that simple curves need no memory of their own
  std::vector<CurvePiece> m_pieces; // or, where there are several, all

  friend bool IsLoneVertex(const Curve& curve);
};

// A polyline of a single vertex: its parameters are the one number 0.
bool IsLoneVertex(const Curve& curve);

} // namespace ge
