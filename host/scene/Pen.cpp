#include "host/scene/Pen.h"

#include "host/db/AcDbEntity.h"
#include "host/scene/SceneBuilder.h"
#include "host/scene/text/TextMetrics.h"

#include <cmath>

namespace scene {

AcDbDatabase& Pen::database() const {
  return m_builder.database();
}

const DrawingVariables& Pen::variables() const {
  return m_builder.variables();
}

const Limits& Pen::limits() const {
  return m_builder.options().limits;
}

const TextMetrics& Pen::metrics() const {
  return m_builder.metrics();
}

const StyleLook& Pen::style(const AcDbObjectId& id) const {
  return m_builder.styles().of(id);
}

const StyleLook& Pen::style(const CString& name) const {
  return m_builder.styles().of(name);
}

PathPen Pen::path(const AcGeVector3d& normal) const {
  const bool isWorld = normal.x == 0 && normal.y == 0 && normal.z > 0;
  return isWorld ? path() : path(AcGeMatrix3d::planeToWorld(normal));
}

double Pen::lengthScale(const AcGeMatrix3d& m) {
  const double area = m.entry[0][0] * m.entry[1][1] - m.entry[0][1] * m.entry[1][0];
  const double scale = std::sqrt(std::fabs(area));
  return std::isfinite(scale) && scale > 0 ? scale : 1;
}

void Pen::stroke(PathPen& path, const StrokeOptions& options) {
  if (path.isEmpty()) return;
  if (path.isBroken()) return leaveOut(L"坐标超出范围");
  if (m_record) {
    StrokeOptions own = options;
    own.width *= lengthScale(path.matrix());
    m_record->parts.push_back({std::move(path.path()), own, false});
    return;
  }
  Primitive primitive;
  primitive.kind = Primitive::Kind::stroke;
  primitive.color = m_look.color;
  primitive.weight = static_cast<std::int16_t>(m_look.weight);
  primitive.clip = m_clip;
  if (options.width > 0) primitive.width = options.width * lengthScale(path.matrix());
  if (!options.solid)
    primitive.pattern = m_builder.pattern(m_look, m_frame.linetypeLength, !options.throughVertices);
  m_builder.add(primitive, path.view());
}

void Pen::fill(PathPen& path, std::optional<Color> color) {
  if (path.isEmpty()) return;
  if (path.isBroken()) return leaveOut(L"坐标超出范围");
  if (m_record) {
    m_record->isWhole &= !color.has_value();
    m_record->parts.push_back({std::move(path.path()), {}, true});
    return;
  }
  Primitive primitive;
  primitive.kind = Primitive::Kind::fill;
  primitive.color = color.value_or(m_look.color);
  primitive.clip = m_clip;
  m_builder.add(primitive, path.view());
}

void Pen::draw(const Shape& shape) {
  for (const Shape::Part& part : shape.parts) {
    PathPen path = this->path();
    path.append(part.path.view());
    part.filled ? fill(path) : stroke(path, part.options);
  }
}

void Pen::text(std::wstring text, const Font& font, const AcGeMatrix3d& toSpace, const AcGePoint3d& origin,
               const AcGeVector3d& along, const AcGeVector3d& up, std::optional<Color> color) {
  if (text.empty()) return;
  PathPen corners = path(toSpace);
  corners.move(origin);
  corners.line(origin + along);
  corners.line(origin + up);
  if (corners.isBroken()) return leaveOut(L"坐标超出范围");
  const auto& p = corners.path().points;
  TextRun run;
  run.origin = p[0];
  run.along = p[1] - p[0];
  run.up = p[2] - p[0];
  run.advance = metrics().advance(font, text);
  // Seen on edge it is no text, and painters can't turn its matrix round.
  if (std::fabs(run.along.x * run.up.y - run.along.y * run.up.x) < 1e-24) return;
  run.text = std::move(text);
  run.font = font;
  Primitive primitive;
  primitive.kind = Primitive::Kind::text;
  primitive.color = color.value_or(m_look.color);
  primitive.clip = m_clip;
  m_builder.addText(primitive, std::move(run));
}

void Pen::point(const AcGePoint3d& at) {
  PathPen path = this->path();
  path.move(at);
  if (path.isBroken()) return leaveOut(L"坐标超出范围");
  Primitive primitive;
  primitive.kind = Primitive::Kind::point;
  primitive.color = m_look.color;
  primitive.weight = static_cast<std::int16_t>(m_look.weight);
  primitive.clip = m_clip;
  m_builder.add(primitive, path.view());
}

void Pen::infiniteLine(const AcGePoint3d& from, const AcGePoint3d& through, bool isRay) {
  PathPen path = this->path();
  path.move(from);
  path.line(through);
  if (path.isBroken()) return leaveOut(L"坐标超出范围");
  if (path.path().points[0].distanceTo(path.path().points[1]) == 0) return;
  Primitive primitive;
  primitive.kind = isRay ? Primitive::Kind::ray : Primitive::Kind::xline;
  primitive.color = m_look.color;
  primitive.weight = static_cast<std::int16_t>(m_look.weight);
  primitive.clip = m_clip;
  primitive.pattern = m_builder.pattern(m_look, m_frame.linetypeLength, true);
  m_builder.add(primitive, path.view());
}

void Pen::block(const AcDbObjectId& block, const AcGeMatrix3d& toSpace) {
  m_builder.drawBlock(m_frame, m_clip, m_look, m_entity, block, toSpace);
}

void Pen::subEntity(const AcDbObjectId& id) {
  m_builder.drawPart(m_frame, m_clip, m_look, m_entity, id);
}

void Pen::clip(PathPen& path) {
  if (!path.isEmpty() && !path.isBroken()) m_clip = m_builder.addClip(std::move(path.path()), m_clip);
}

void Pen::nested(const AcDbObjectId& id, const AcGeMatrix3d& toSpace) {
  m_builder.drawNested(m_frame, m_clip, m_look, m_entity, id, toSpace);
}

bool Pen::takeTraits(const AcGiSubEntityTraits& own, const AcGiSubEntityTraits& now) {
  return m_builder.looks().apply(m_frame, own, now, m_look);
}

void Pen::leaveOut(const CString& what) {
  if (m_record) {
    m_record->isWhole = false;
    return;
  }
  m_builder.leaveOut(what, m_entity);
}

} // namespace scene
