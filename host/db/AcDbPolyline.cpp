#include "host/db/AcDbPolyline.h"

#include "host/db/AcDbArc.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/EntityMath.h"
#include "host/ge/ArcMath.h"
#include "host/ge/Curve.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <memory>

ACRX_DXF_DEFINE_MEMBERS(AcDbPolyline, AcDbCurve, "LWPOLYLINE")

namespace {

AcGePoint3d worldPoint(const AcGePoint2d& p, double elevation, const AcGeVector3d& normal) {
  return entity::toWorld(AcGePoint3d(p.x, p.y, elevation), normal);
}

} // namespace

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint2d& point) const {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  point = m_vertices[index].point;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getPointAt(unsigned int index, AcGePoint3d& point) const {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  point = worldPoint(m_vertices[index].point, m_elevation, m_normal);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getBulgeAt(unsigned int index, double& bulge) const {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  bulge = m_vertices[index].bulge;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getWidthsAt(unsigned int index, double& start, double& end) const {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  const bool constant = m_constantWidth != 0;
  start = constant ? m_constantWidth : m_vertices[index].startWidth;
  end = constant ? m_constantWidth : m_vertices[index].endWidth;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge,
                                            double startWidth, double endWidth) {
  if (index > m_vertices.size()) return Acad::eOutOfRange;
  if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(bulge)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_vertices.insert(m_vertices.begin() + index, {point, bulge, startWidth, endWidth});
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::removeVertexAt(unsigned int index) {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_vertices.erase(m_vertices.begin() + index);
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setPointAt(unsigned int index, const AcGePoint2d& point) {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_vertices[index].point = point;
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setBulgeAt(unsigned int index, double bulge) {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  if (!std::isfinite(bulge)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_vertices[index].bulge = bulge;
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setConstantWidth(double width) {
  if (!std::isfinite(width)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_constantWidth = width;
  for (Vertex& vertex : m_vertices) {
    m_verticesChanged = m_verticesChanged || vertex.startWidth != 0 || vertex.endWidth != 0;
    vertex.startWidth = vertex.endWidth = 0;
  }
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getConstantWidth(double& width) const {
  double common = m_constantWidth;
  if (common == 0 && !m_vertices.empty()) {
    common = m_vertices.front().startWidth;
    for (const Vertex& vertex : m_vertices)
      if (vertex.startWidth != common || vertex.endWidth != common) return Acad::eInvalidInput;
  }
  width = common;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setClosed(bool closed) {
  return assign(m_flags, closed ? m_flags | 1 : m_flags & ~1);
}

Acad::ErrorStatus AcDbPolyline::setElevation(double elevation) {
  return assign(m_elevation, elevation, std::isfinite(elevation));
}

Acad::ErrorStatus AcDbPolyline::setNormal(const AcGeVector3d& normal) {
  if (!entity::isFinite(normal) || normal.isZeroLength()) return Acad::eInvalidInput;
  return assign(m_normal, normal.normal());
}

Acad::ErrorStatus AcDbPolyline::setWidthsAt(unsigned int index, double start, double end) {
  if (index >= m_vertices.size()) return Acad::eOutOfRange;
  if (!std::isfinite(start) || !std::isfinite(end)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  // One width for all gives way to widths of their own.
  if (m_constantWidth != 0)
    for (Vertex& vertex : m_vertices) vertex.startWidth = vertex.endWidth = m_constantWidth;
  m_constantWidth = 0;
  m_vertices[index].startWidth = start;
  m_vertices[index].endWidth = end;
  m_verticesChanged = true;
  return Acad::eOk;
}

std::size_t AcDbPolyline::segmentCount() const {
  return m_vertices.size() < 2 ? 0 : m_vertices.size() - (isClosed() ? 0 : 1);
}

AcDbPolyline::SegType AcDbPolyline::segType(unsigned int index) const {
  if (index >= m_vertices.size()) return kEmpty;
  if (index >= segmentCount()) return kPoint;
  const Vertex& from = m_vertices[index];
  const Vertex& to = m_vertices[(index + 1) % m_vertices.size()];
  if (from.point.x == to.point.x && from.point.y == to.point.y) return kCoincident;
  return ge::ArcFromBulge(from.point, to.point, from.bulge) ? kArc : kLine;
}

bool AcDbPolyline::hasBulges() const {
  return std::any_of(m_vertices.begin(), m_vertices.end(), [](const Vertex& v) { return v.bulge != 0; });
}

bool AcDbPolyline::hasWidth() const {
  return m_constantWidth != 0 || std::any_of(m_vertices.begin(), m_vertices.end(), [](const Vertex& v) {
           return v.startWidth != 0 || v.endWidth != 0;
         });
}

// As the kernel computes it, so that ends compare equal with its results.
AcGePoint3d AcDbPolyline::worldVertex(std::size_t index) const {
  const ge::PolylineVertex vertex{m_vertices[index].point, 0.0};
  const auto curve = ge::Curve::Polyline({&vertex, 1}, false, m_normal, m_elevation);
  return curve.Status() == ge::CurveStatus::kOk ? curve.PieceStart(0)
                                                : worldPoint(vertex.point, m_elevation, m_normal);
}

Acad::ErrorStatus AcDbPolyline::getStartPoint(AcGePoint3d& point) const {
  if (m_vertices.empty()) return Acad::eDegenerateGeometry;
  point = worldVertex(0);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getEndPoint(AcGePoint3d& point) const {
  if (m_vertices.empty()) return Acad::eDegenerateGeometry;
  point = worldVertex(isClosed() ? 0 : m_vertices.size() - 1);
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getCurve(ge::Curve& curve) const {
  std::vector<ge::PolylineVertex> vertices;
  vertices.reserve(m_vertices.size());
  for (const Vertex& vertex : m_vertices) vertices.push_back({vertex.point, vertex.bulge});
  curve = ge::Curve::Polyline(vertices, isClosed(), m_normal, m_elevation);
  return Acad::eOk;
}

// A vertex that stays keeps its widths; one that came in takes those of the segment that it divides.
Acad::ErrorStatus AcDbPolyline::setCurve(const ge::Curve& curve) {
  if (curve.Kind() != ge::CurveKind::kPolyline) return Acad::eNotThatKindOfClass;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  std::vector<Vertex> vertices;
  const auto wanted = curve.Vertices();
  const auto findKept = [&](const ge::PolylineVertex& from, std::size_t first) {
    for (std::size_t i = first; i < m_vertices.size(); ++i)
      if (m_vertices[i].point.x == from.point.x && m_vertices[i].point.y == from.point.y) return i;
    return m_vertices.size();
  };
  std::size_t kept = 0;
  // A new first vertex divides the segment ahead of the first one that stays.
  if (wanted.size() > 1 && findKept(wanted[0], 0) == m_vertices.size()) {
    const std::size_t next = findKept(wanted[1], 0);
    if (next < m_vertices.size()) kept = next > 0 ? next - 1 : m_vertices.size() - 1;
  }
  for (const ge::PolylineVertex& from : wanted) {
    Vertex vertex;
    if (const std::size_t same = findKept(from, kept); same < m_vertices.size()) kept = same;
    if (kept < m_vertices.size()) vertex = m_vertices[kept];
    vertex.point = from.point;
    vertex.bulge = from.bulge;
    vertices.push_back(vertex);
  }
  m_vertices = std::move(vertices);
  m_flags = curve.IsClosed() ? m_flags | 1 : m_flags & ~1;
  m_normal = curve.Normal();
  m_elevation = curve.Elevation();
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::reverseCurve() {
  if (m_vertices.empty()) return Acad::eDegenerateGeometry;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  // Segment data stands at the vertex where the segment begins, which is now the other one.
  std::vector<Vertex> reversed(m_vertices.rbegin(), m_vertices.rend());
  const std::size_t count = reversed.size();
  for (std::size_t i = 0; i < count; ++i) {
    const Vertex& segment = m_vertices[(2 * count - 2 - i) % count];
    reversed[i].bulge = -segment.bulge;
    reversed[i].startWidth = segment.endWidth;
    reversed[i].endWidth = segment.startWidth;
  }
  m_vertices = std::move(reversed);
  m_verticesChanged = true;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::explode(std::vector<AcDbEntity*>& parts) const {
  ge::Curve curve;
  getCurve(curve);
  if (curve.Status() != ge::CurveStatus::kOk || segmentCount() == 0) return Acad::eCannotExplodeEntity;
  for (std::size_t i = 0; i < curve.Pieces().size(); ++i) {
    const ge::CurvePiece& piece = curve.Pieces()[i];
    std::unique_ptr<AcDbCurve> part;
    if (piece.isArc) {
      part = std::make_unique<AcDbArc>();
      // Arcs run anticlockwise: a clockwise segment is the same arc from its other end.
      const ge::CurvePiece forward = piece.arc.sweep < 0 ? ge::Reversed(piece) : piece;
      part->setCurve(ge::Curve::OfPieces(ge::CurveKind::kArc, curve.Frame(), {forward}, false));
    } else {
      part = std::make_unique<AcDbLine>(curve.PieceStart(i), curve.PieceEnd(i));
    }
    part->setPropertiesFrom(this);
    parts.push_back(part.release());
  }
  return Acad::eOk;
}

void AcDbPolyline::worldDraw(AcGiWorldDraw& draw) const {
  if (m_vertices.size() == 1) draw.point(worldPoint(m_vertices[0].point, m_elevation, m_normal));
  std::vector<AcGePoint3d> straight;
  const auto flush = [&] {
    if (straight.size() > 1) draw.polyline(straight);
    straight.clear();
  };
  for (std::size_t i = 0; i < segmentCount(); ++i) {
    const Vertex& from = m_vertices[i];
    const Vertex& to = m_vertices[(i + 1) % m_vertices.size()];
    const auto arc = ge::ArcFromBulge(from.point, to.point, from.bulge);
    if (!arc) {
      if (straight.empty()) straight.push_back(worldPoint(from.point, m_elevation, m_normal));
      straight.push_back(worldPoint(to.point, m_elevation, m_normal));
      continue;
    }
    flush();
    const double start = arc->sweep >= 0 ? arc->startAngle : arc->startAngle + arc->sweep;
    draw.circularArc(worldPoint(arc->center, m_elevation, m_normal), arc->radius, m_normal,
                     entity::xAxis(m_normal), start, std::fabs(arc->sweep));
  }
  flush();
}

Acad::ErrorStatus AcDbPolyline::transformBy(const AcGeMatrix3d& matrix) {
  if (!matrix.isUniScaledOrtho()) return Acad::eCannotScaleNonUniformly;
  if (!entity::isFinite(matrix)) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  const AcGeVector3d before = m_normal;
  m_normal = entity::transformedNormal(m_normal, matrix);
  double elevation = m_elevation;
  for (Vertex& vertex : m_vertices) {
    const AcGePoint3d moved =
        entity::toObject(matrix * worldPoint(vertex.point, m_elevation, before), m_normal);
    vertex.point = {moved.x, moved.y};
    elevation = moved.z;
    if (matrix.det() < 0) vertex.bulge = -vertex.bulge;
    vertex.startWidth *= matrix.scale();
    vertex.endWidth *= matrix.scale();
  }
  m_elevation = elevation;
  m_constantWidth *= matrix.scale();
  m_verticesChanged = true;
  return Acad::eOk;
}

void AcDbPolyline::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbEntity::dxfInFields(tags, context);
  m_vertices.clear();
  m_normal = {0, 0, 1};
  m_elevation = m_thickness = m_constantWidth = 0;
  m_flags = 0;
  m_verticesChanged = false;
  const entity::FieldScope scope(tags);
  const Vertex none{};
  for (const DxfTag& tag : scope) {
    if (tag.code == 10) m_vertices.push_back(none);
    Vertex* vertex = m_vertices.empty() ? nullptr : &m_vertices.back();
    switch (tag.code) {
    case 90: {
      const auto count = context.integer(tag);
      if (count > 0 && count <= static_cast<long long>(tags.size()))
        m_vertices.reserve(static_cast<std::size_t>(count));
      break;
    }
    case 10:
      vertex->point.x = context.real(tag);
      break;
    case 20:
      if (vertex) vertex->point.y = context.real(tag);
      break;
    case 40:
      if (vertex) vertex->startWidth = context.real(tag);
      break;
    case 41:
      if (vertex) vertex->endWidth = context.real(tag);
      break;
    case 42:
      if (vertex) vertex->bulge = context.real(tag);
      break;
    case 91:
      if (vertex) vertex->id = static_cast<int>(context.integerIn(tag, INT_MIN, INT_MAX, 0));
      break;
    case 70:
      m_flags = static_cast<int>(context.integerIn(tag, -0x8000, 0xFFFF, 0));
      break;
    case 43:
      m_constantWidth = context.real(tag);
      break;
    case 38:
      m_elevation = context.real(tag);
      break;
    case 39:
      m_thickness = context.real(tag);
      break;
    default:
      entity::readVector(tag, 210, m_normal, context);
      break;
    }
  }
}

void AcDbPolyline::dxfOutFields(DxfRecordEditor& editor) const {
  AcDbEntity::dxfOutFields(editor);
  editor.subclass("AcDbPolyline");
  editor.integer(90, static_cast<long long>(m_vertices.size()));
  editor.integer(70, m_flags);
  editor.real(43, m_constantWidth, 0.0);
  editor.real(38, m_elevation, 0.0);
  editor.real(39, m_thickness, 0.0);
  if (m_verticesChanged || rawRecord().isEmpty()) {
    std::string run;
    for (const Vertex& vertex : m_vertices) {
      run += DxfRecordEditor::realTag(10, vertex.point.x) + DxfRecordEditor::realTag(20, vertex.point.y);
      if (vertex.startWidth != 0 || vertex.endWidth != 0)
        run +=
            DxfRecordEditor::realTag(40, vertex.startWidth) + DxfRecordEditor::realTag(41, vertex.endWidth);
      if (vertex.bulge != 0) run += DxfRecordEditor::realTag(42, vertex.bulge);
      if (vertex.id != 0) run += DxfRecordEditor::tag(91, std::to_string(vertex.id));
    }
    static constexpr int codes[] = {10, 20, 40, 41, 42, 91};
    editor.replaceRun(codes, run);
  }
  editor.vector(210, m_normal, {0, 0, 1});
}
