#include "host/scene/WorldDrawPen.h"

#include "host/db/AcDbEntity.h"
#include "host/scene/Pen.h"

#include <cmath>

namespace scene {
namespace {

AcGiSubEntityTraits traitsOf(const AcDbEntity& entity) {
  AcGiSubEntityTraits traits;
  traits.setColor(entity.colorIndex());
  traits.setLayer(entity.layerId());
  traits.setLineType(entity.linetypeId());
  traits.setLineWeight(entity.lineWeight());
  return traits;
}

} // namespace

WorldDrawPen::WorldDrawPen(Pen& pen)
    : m_pen(pen), m_ownLook(pen.look()), m_ownTraits(traitsOf(pen.entity())), m_traits(m_ownTraits) {}

void WorldDrawPen::entity() {
  try {
    m_pen.entity().worldDraw(*this);
  } catch (...) {
    m_pen.leaveOut(L"实体画图时出错");
    m_isEmpty = false;
  }
}

// False where nothing is to be drawn with what was set.
bool WorldDrawPen::takeTraits() {
  m_isEmpty = false;
  m_pen.setLook(m_ownLook);
  return m_pen.takeTraits(m_ownTraits, m_traits);
}

bool WorldDrawPen::beginEntity(const AcDbEntity& entity) {
  if (entity.database() && takeTraits()) {
    m_pen.nested(entity.objectId(), matrix());
    return false;
  }
  m_outerTraits.push_back(m_traits);
  m_traits = traitsOf(entity);
  return true;
}

void WorldDrawPen::endEntity(const AcDbEntity&) {
  if (m_outerTraits.empty()) return;
  m_traits = m_outerTraits.back();
  m_outerTraits.pop_back();
}

void WorldDrawPen::point(const AcGePoint3d& at) {
  if (takeTraits()) m_pen.point(matrix() * at);
}

void WorldDrawPen::polyline(std::span<const AcGePoint3d> points) {
  if (!takeTraits()) return;
  PathPen path = m_pen.path(matrix());
  for (const AcGePoint3d& p : points) path.isEmpty() ? path.move(p) : path.line(p);
  m_pen.stroke(path, {.throughVertices = true});
}

void WorldDrawPen::circularArc(const AcGePoint3d& centre, double radius, const AcGeVector3d& normal,
                               const AcGeVector3d& xAxis, double startAngle, double sweep) {
  if (!takeTraits()) return;
  if (!std::isfinite(startAngle) || !std::isfinite(sweep)) return m_pen.leaveOut(L"角度不是数");
  PathPen path = m_pen.path(matrix());
  path.arc(centre, xAxis * radius, normal.crossProduct(xAxis) * radius, startAngle, sweep);
  m_pen.stroke(path);
}

void WorldDrawPen::text(const AcGePoint3d& at, const AcGeVector3d& normal, const AcGeVector3d& direction,
                        double height, double widthFactor, const CString& text) {
  if (!takeTraits()) return;
  m_pen.text(std::wstring(text.View()), m_pen.style(CString(L"Standard")).font, matrix(), at,
             direction * (height * widthFactor), normal.crossProduct(direction) * height);
}

void WorldDrawPen::pushModelTransform(const AcGeMatrix3d& pushed) {
  m_matrices.push_back(matrix() * pushed);
}

void WorldDrawPen::popModelTransform() {
  if (!m_matrices.empty()) m_matrices.pop_back();
}

} // namespace scene
