// Lines and curves in the plane of the picture. Curves are cubic Bezier pieces: they stay what they are
// through any affine map, and every painter knows them. An arc comes as pieces of at most an eighth of a
// turn, which keep within 4 millionths of the radius.
#pragma once

#include "host/ge/AcGePoint2d.h"
#include "host/ge/Box2d.h"

#include <cstdint>
#include <span>
#include <vector>

namespace scene {

enum class Verb : std::uint8_t {
  move,    // one point: begins a part
  line,    // one point
  curve,   // three points: two controls and the end
  curveOn, // the same, and it goes on the segment of the drawing that the piece before belongs to
  close    // none: a line back to where the part began, and its end
};

constexpr std::size_t PointsOf(Verb verb) {
  return verb == Verb::close ? 0 : verb == Verb::curve || verb == Verb::curveOn ? 3 : 1;
}

struct PathView {
  std::span<const Verb> verbs;
  std::span<const AcGePoint2d> points;
  bool isEmpty() const { return verbs.empty(); }
};

struct Path {
  std::vector<Verb> verbs;
  std::vector<AcGePoint2d> points;

  bool isEmpty() const { return verbs.empty(); }
  PathView view() const { return {verbs, points}; }
  void move(const AcGePoint2d& p) { add(Verb::move, p); }
  void line(const AcGePoint2d& p) { add(Verb::line, p); }
  void curve(const AcGePoint2d& c1, const AcGePoint2d& c2, const AcGePoint2d& end, bool goesOn);
  void close() { verbs.push_back(Verb::close); }
  void append(PathView other);
  void clear();

 private:
  void add(Verb verb, const AcGePoint2d& p) {
    constexpr std::size_t kUsual = 16; // most paths are done with one piece of memory
    if (points.capacity() == 0) {
      points.reserve(kUsual);
      verbs.reserve(kUsual);
    }
    verbs.push_back(verb);
    points.push_back(p);
  }
};

// The box around the points, which holds the curves as well.
ge::Box2d BoxOf(PathView path);

// The path as polygons, one for each part: curves become chords, eight to a piece. A part that was closed
// ends in its first point.
std::vector<std::vector<AcGePoint2d>> Flatten(PathView path);

} // namespace scene
