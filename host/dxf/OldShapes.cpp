#include "host/dxf/OldShapes.h"

#include "host/db/DxfRecordEditor.h"
#include "host/dxf/CurvePoints.h"
#include "host/dxf/MTextLines.h"

#include <cmath>
#include <numbers>

namespace {

using Editor = DxfRecordEditor;

struct Source {
  DxfTags tags;
  const std::string& handle;
  const std::string& properties;
  const std::string& extendedData;

  double real(int code, double absent = 0) const {
    for (const DxfTag& tag : tags)
      if (tag.code == code) return dxf::toReal(tag.value).value_or(absent);
    return absent;
  }
  int integer(int code) const {
    for (const DxfTag& tag : tags)
      if (tag.code == code) return static_cast<int>(dxf::toInteger(tag.value).value_or(0));
    return 0;
  }
  std::string_view text(int code) const {
    for (const DxfTag& tag : tags)
      if (tag.code == code) return dxf::trimBlanks(tag.value);
    return {};
  }
  AcGePoint3d point(int code) const { return {real(code), real(code + 10), real(code + 20)}; }
  bool has(int code) const {
    for (const DxfTag& tag : tags)
      if (tag.code == code) return true;
    return false;
  }
  // Tags that both versions have under the same codes.
  std::string kept(std::initializer_list<int> codes) const {
    std::string out;
    for (const int code : codes)
      for (const DxfTag& tag : tags)
        if (tag.code == code) {
          out += Editor::tag(code, dxf::trimBlanks(tag.value));
          break;
        }
    return out;
  }
};

std::string pointTags(int code, const AcGePoint3d& p) {
  return Editor::realTag(code, p.x) + Editor::realTag(code + 10, p.y) + Editor::realTag(code + 20, p.z);
}

constexpr int kClosed = 1;
constexpr int k3d = 8;
constexpr int k3dVertex = 32;

std::string polyline(const Source& source, int flags, const std::string& head,
                     const std::vector<std::string>& vertices) {
  std::string out = Editor::tag(0, "POLYLINE") + source.handle + source.properties + Editor::tag(66, "1") +
                    head + Editor::tag(70, std::to_string(flags)) + source.extendedData;
  for (const std::string& vertex : vertices) out += Editor::tag(0, "VERTEX") + source.properties + vertex;
  return out + Editor::tag(0, "SEQEND") + source.properties;
}

std::string polyline3d(const Source& source, const std::vector<AcGePoint3d>& points, bool closed) {
  std::vector<std::string> vertices;
  for (const AcGePoint3d& p : points)
    vertices.push_back(pointTags(10, p) + Editor::tag(70, std::to_string(k3dVertex)));
  return polyline(source, k3d | (closed ? kClosed : 0), pointTags(10, {}), vertices);
}

dxf::OldShape fromLwPolyline(const Source& source) {
  const double elevation = source.real(38);
  const double width = source.real(43);
  std::vector<std::string> vertices;
  AcGePoint3d point(0, 0, elevation);
  double widths[2] = {width, width};
  double bulge = 0;
  bool any = false;
  const auto finish = [&] {
    if (!any) return;
    std::string vertex = pointTags(10, point);
    if (widths[0] != width || widths[1] != width)
      vertex += Editor::realTag(40, widths[0]) + Editor::realTag(41, widths[1]);
    if (bulge != 0) vertex += Editor::realTag(42, bulge);
    vertices.push_back(std::move(vertex));
  };
  for (const DxfTag& tag : source.tags) {
    const double value = dxf::toReal(tag.value).value_or(0);
    switch (tag.code) {
    case 10:
      finish();
      any = true;
      point.x = value;
      widths[0] = widths[1] = width;
      bulge = 0;
      break;
    case 20:
      point.y = value;
      break;
    case 40:
      widths[0] = value;
      break;
    case 41:
      widths[1] = value;
      break;
    case 42:
      bulge = value;
      break;
    default:
      break;
    }
  }
  finish();
  std::string head = pointTags(10, {0, 0, elevation}) + source.kept({39, 210, 220, 230});
  if (width != 0) head += Editor::realTag(40, width) + Editor::realTag(41, width);
  return {polyline(source, source.integer(70) & (kClosed | 128), head, vertices), nullptr};
}

dxf::OldShape fromLeader(const Source& source) {
  std::vector<AcGePoint3d> points;
  for (const DxfTag& tag : source.tags) {
    const double value = dxf::toReal(tag.value).value_or(0);
    if (tag.code == 10) points.emplace_back(value, 0, 0);
    if (tag.code == 20 && !points.empty()) points.back().y = value;
    if (tag.code == 30 && !points.empty()) points.back().z = value;
  }
  if (points.size() < 2) return {};
  return {polyline3d(source, points, false), L"引线改为多段线"};
}

dxf::OldShape fromEllipse(const Source& source) {
  const auto points = dxf::ellipsePoints({source.point(10),
                                          source.point(11) - AcGePoint3d(),
                                          {source.real(210), source.real(220), source.real(230, 1)},
                                          source.real(40, 1),
                                          source.real(41),
                                          source.real(42, 2 * std::numbers::pi)});
  if (points.size() < 2) return {};
  return {polyline3d(source, points, false), L"椭圆改为折线"};
}

dxf::OldShape fromSpline(const Source& source) {
  const auto points = dxf::splinePoints(source.tags);
  if (points.size() < 2) return {};
  return {polyline3d(source, points, false), L"样条曲线改为折线"};
}

// A table is drawn by a block of its own.
dxf::OldShape fromTable(const Source& source) {
  if (source.text(2).empty()) return {};
  return {Editor::tag(0, "INSERT") + source.handle + source.properties + source.kept({2}) +
              pointTags(10, source.point(10)) + source.extendedData,
          L"表格改为块"};
}

// A line of text each. What wraps only for the width of the box stays one line: how wide letters are, no file
// says.
dxf::OldShape fromMText(const Source& source) {
  std::string contents;
  for (const DxfTag& tag : source.tags)
    if (tag.code == 3 || tag.code == 1) contents += tag.value;
  const auto lines = dxf::mtextLines(contents);
  if (lines.empty()) return {std::string(), L"空的多行文字"};
  const double height = source.real(40, 1);
  const double spacing = height * 5 / 3 * source.real(44, 1);
  double angle = source.real(50) * std::numbers::pi / 180;
  if (source.has(11)) angle = std::atan2(source.real(21), source.real(11));
  const int attachment = std::max(1, source.integer(71));
  const int column = (attachment - 1) % 3; // left, centre, right
  const int row = (attachment - 1) / 3;    // top, middle, bottom
  const double total = height + spacing * static_cast<double>(lines.size() - 1);
  const AcGePoint3d insertion = source.point(10);
  dxf::OldShape shape{{}, L"多行文字改为单行文字，格式不保留"};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    // Of the baseline, from the insertion point along the text's own upward direction.
    const double up = (row == 0   ? 0
                       : row == 1 ? total / 2
                                  : total) -
                      height - spacing * static_cast<double>(i);
    const AcGePoint3d at(insertion.x - std::sin(angle) * up, insertion.y + std::cos(angle) * up, insertion.z);
    shape.text += Editor::tag(0, "TEXT");
    if (i == 0) shape.text += source.handle;
    shape.text += source.properties + pointTags(10, at) + Editor::realTag(40, height) +
                  Editor::tag(1, lines[i]) + source.kept({7}) +
                  Editor::realTag(50, angle * 180 / std::numbers::pi);
    if (column > 0) shape.text += Editor::tag(72, std::to_string(column)) + pointTags(11, at);
    shape.text += source.kept({210, 220, 230});
    if (i == 0) shape.text += source.extendedData;
  }
  return shape;
}

struct Row {
  std::string_view type;
  dxf::OldShape (*convert)(const Source&);
};
constexpr Row kRows[] = {
    {"LWPOLYLINE", fromLwPolyline}, {"MTEXT", fromMText},   {"LEADER", fromLeader},
    {"ELLIPSE", fromEllipse},       {"SPLINE", fromSpline}, {"ACAD_TABLE", fromTable},
};

} // namespace

dxf::OldShape dxf::oldShapeOf(std::string_view type, DxfTags tags, const std::string& handle,
                              const std::string& properties, const std::string& extendedData) {
  for (const Row& row : kRows)
    if (row.type == type) return row.convert({tags, handle, properties, extendedData});
  return {};
}
