// A picture of one space of a drawing: a flat list of what is to be painted, in the order of painting, with
// everything resolved - colours, linetypes, weights, blocks, fonts. Whatever paints it (a file, a window)
// needs no drawing database. Coordinates are those of the space, seen from above.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/scene/Color.h"
#include "host/scene/Path.h"
#include "host/scene/Pattern.h"
#include "host/scene/text/Font.h"

#include <string>
#include <vector>

namespace scene {

// A line of text, all alignment resolved: it begins at the origin and its base line runs along.
struct TextRun {
  std::wstring text;
  Font font;
  AcGePoint2d origin;
  AcGeVector2d along; // of a length 1 in the metrics (see TextMetrics), width factor applied
  AcGeVector2d up;    // from the base line over the height of capitals, slant applied
  double advance = 0; // in lengths of along
};

struct Primitive {
  enum class Kind : std::uint8_t {
    stroke,
    fill, // even-odd
    text,
    point, // the mark of a point, see Scene::pointMode
    ray,   // two points: where it begins and one on it
    xline  // two points on it
  };
  static constexpr std::int32_t kNone = -1;

  Kind kind = Kind::stroke;
  Color color;
  std::int16_t weight = 0;      // of a stroke, hundredths of a millimetre on paper
  std::int32_t pattern = kNone; // index in Scene::patterns
  std::int32_t clip = kNone;    // index in Scene::clips
  double width = 0;             // of a stroke in drawing units; above 0 it holds in place of the weight
  std::uint32_t firstVerb = 0;
  std::uint32_t verbCount = 0;
  std::uint32_t firstPoint = 0;
  std::uint32_t pointCount = 0;
  std::uint32_t text = 0; // index in Scene::texts
};

// What one entity of the space put into the picture: to leave out what a window doesn't show, and to tell
// what was hit.
struct Group {
  AcDbObjectId entity;
  ge::Box2d box;          // without rays and construction lines
  bool unbounded = false; // holds some of those
  std::uint32_t firstPrimitive = 0;
  std::uint32_t primitiveCount = 0;
};

// A region outside of which nothing is painted.
struct Clip {
  Path path;                              // even-odd
  std::int32_t within = Primitive::kNone; // a clip that holds as well
};

struct Scene {
  std::vector<Verb> verbs;
  std::vector<AcGePoint2d> points;
  std::vector<Primitive> primitives;
  std::vector<Group> groups;
  std::vector<TextRun> texts;
  std::vector<Pattern> patterns;
  std::vector<Clip> clips;
  int pointMode = 0; // PDMODE
  double pointSize =
      0;         // PDSIZE: above 0 in drawing units, else a share of the window's height, see PointMark
  ge::Box2d box; // around all groups
  bool asksPlugIns = false;   // some entities draw themselves
  bool isProvisional = false; // something asks for what is not read yet
  // What the drawing has and the picture doesn't, a sentence each, most important first.
  std::vector<CString> leftOut;

  PathView path(const Primitive& primitive) const {
    return {std::span(verbs).subspan(primitive.firstVerb, primitive.verbCount),
            std::span(points).subspan(primitive.firstPoint, primitive.pointCount)};
  }
};

} // namespace scene
