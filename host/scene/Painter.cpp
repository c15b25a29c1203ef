#include "host/scene/Painter.h"

#include "host/scene/painters/Painters.h"

#include <unordered_map>

namespace scene {
namespace {

struct Row {
  std::string_view name;
  void (*draw)(Pen& pen);
  Reach reach = Reach::drawing;
  Hides hides = Hides::all;
};

constexpr Row kRows[] = {
    {"3DFACE", painters::Face, Reach::entities},
    {"ACAD_TABLE", painters::Table},
    {"ARC", painters::Arc, Reach::shape},
    {"ARC_DIMENSION", painters::Dimension},
    {"ATTDEF", painters::Attdef, Reach::entities},
    {"ATTRIB", painters::Attrib, Reach::entities},
    {"CIRCLE", painters::Circle, Reach::shape},
    {"DIMENSION", painters::Dimension},
    {"ELLIPSE", painters::Ellipse, Reach::entities},
    {"HATCH", painters::Hatch, Reach::entities},
    {"HELIX", painters::Spline},
    {"IMAGE", painters::Image},
    {"INSERT", painters::Insert, Reach::entities, Hides::frozen},
    {"LARGE_RADIAL_DIMENSION", painters::Dimension},
    {"LEADER", painters::Leader},
    {"LINE", painters::Line, Reach::shape},
    {"LWPOLYLINE", painters::LwPolyline, Reach::shape},
    {"MESH", painters::Mesh},
    {"MLINE", painters::MLine},
    {"MTEXT", painters::MText, Reach::entities},
    {"MULTILEADER", painters::MultiLeader},
    {"POINT", painters::Point, Reach::entities},
    {"POLYLINE", painters::Polyline, Reach::entities},
    {"RAY", painters::Ray, Reach::entities},
    {"SEQEND", painters::Nothing, Reach::entities},
    {"SOLID", painters::Solid, Reach::entities},
    {"SPLINE", painters::Spline, Reach::entities},
    {"TEXT", painters::Text, Reach::entities},
    {"TOLERANCE", painters::Tolerance},
    {"TRACE", painters::Solid, Reach::entities},
    {"VERTEX", painters::Nothing, Reach::entities},                   // drawn by its polyline
    {"VIEWPORT", painters::Viewport, Reach::drawing, Hides::nothing}, // but its border
    {"WIPEOUT", painters::Wipeout},
    {"XLINE", painters::XLine, Reach::entities},
};

} // namespace

Painter PainterOf(std::string_view dxfName) {
  static const auto table = [] {
    std::unordered_map<std::string_view, Painter> rows;
    for (const Row& row : kRows) rows.emplace(row.name, Painter{row.draw, row.reach, row.hides});
    return rows;
  }();
  const auto found = table.find(dxfName);
  return found == table.end() ? Painter() : found->second;
}

void painters::Nothing(Pen&) {}

} // namespace scene
