#include "host/scene/Painter.h"

#include "host/scene/painters/Painters.h"

#include <unordered_map>

namespace scene {
namespace {

struct Row {
  std::string_view name;
  void (*draw)(Pen& pen);
  bool hasShape = false;
};

constexpr Row kRows[] = {
    {"3DFACE", painters::Face},
    {"ACAD_TABLE", painters::Table},
    {"ARC", painters::Arc, true},
    {"ARC_DIMENSION", painters::Dimension},
    {"ATTDEF", painters::Attdef},
    {"ATTRIB", painters::Attrib},
    {"CIRCLE", painters::Circle, true},
    {"DIMENSION", painters::Dimension},
    {"ELLIPSE", painters::Ellipse},
    {"HATCH", painters::Hatch},
    {"HELIX", painters::Spline},
    {"IMAGE", painters::Image},
    {"INSERT", painters::Insert},
    {"LARGE_RADIAL_DIMENSION", painters::Dimension},
    {"LEADER", painters::Leader},
    {"LINE", painters::Line, true},
    {"LWPOLYLINE", painters::LwPolyline, true},
    {"MESH", painters::Mesh},
    {"MLINE", painters::MLine},
    {"MTEXT", painters::MText},
    {"MULTILEADER", painters::MultiLeader},
    {"POINT", painters::Point},
    {"POLYLINE", painters::Polyline},
    {"RAY", painters::Ray},
    {"SEQEND", painters::Nothing},
    {"SOLID", painters::Solid},
    {"SPLINE", painters::Spline},
    {"TEXT", painters::Text},
    {"TOLERANCE", painters::Tolerance},
    {"TRACE", painters::Solid},
    {"VERTEX", painters::Nothing}, // drawn by its polyline
    {"VIEWPORT", painters::Viewport},
    {"WIPEOUT", painters::Wipeout},
    {"XLINE", painters::XLine},
};

} // namespace

Painter PainterOf(std::string_view dxfName) {
  static const auto table = [] {
    std::unordered_map<std::string_view, Painter> rows;
    for (const Row& row : kRows) rows.emplace(row.name, Painter{row.draw, row.hasShape});
    return rows;
  }();
  const auto found = table.find(dxfName);
  return found == table.end() ? Painter() : found->second;
}

void painters::Nothing(Pen&) {}

} // namespace scene
