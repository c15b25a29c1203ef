#include "plugin/rooms/VkDbHvacSpace.h"

#include <cmath>

#include "host/db/AcDbPoint.h"
#include "host/db/AcDbPolyline.h"
#include "host/db/AcDbText.h"
#include "host/db/EntityMath.h"

namespace {

// What programs without the plug-in may do with a room: erase and copy it, and change the properties that all
// entities have. Its geometry they don't know.
constexpr int kOthersMay = 0x1 | 0x4 | 0x8 | 0x10 | 0x20 | 0x40 | 0x80 | 0x100;

constexpr double kLineSpacing = 1.6; // of the text height
constexpr std::size_t kFewestCorners = 3;

} // namespace

ACRX_DXF_CUSTOM_DEFINE_MEMBERS(VkDbHvacSpace, AcDbEntity, "VKHVAC_SPACE", "ZPPipeManager", kOthersMay)

VkDbHvacSpace::VkDbHvacSpace() = default;
VkDbHvacSpace::~VkDbHvacSpace() = default;

Acad::ErrorStatus VkDbHvacSpace::SetTotalHeatLoad(double load) {
  return assign(m_loads.totalHeat, load, std::isfinite(load));
}
Acad::ErrorStatus VkDbHvacSpace::SetTotalCoolLoad(double load) {
  return assign(m_loads.totalCool, load, std::isfinite(load));
}
Acad::ErrorStatus VkDbHvacSpace::SetWinTotalMostLoad(double load) {
  return assign(m_loads.winterMost, load, std::isfinite(load));
}
Acad::ErrorStatus VkDbHvacSpace::SetSumTotalMostLoad(double load) {
  return assign(m_loads.summerMost, load, std::isfinite(load));
}

Acad::ErrorStatus VkDbHvacSpace::SetNumber(const CString& number) {
  return assign(m_number, number);
}
Acad::ErrorStatus VkDbHvacSpace::SetName(const CString& name) {
  return assign(m_name, name);
}

AcGePoint3d VkDbHvacSpace::GetPosition() const {
  return entity::toWorld(m_position, m_normal);
}
Acad::ErrorStatus VkDbHvacSpace::SetPosition(const AcGePoint3d& position) {
  return assign(m_position, entity::toObject(position, m_normal), entity::isFinite(position));
}
Acad::ErrorStatus VkDbHvacSpace::SetTextHeight(double height) {
  return assign(m_textHeight, height, height > 0 && std::isfinite(height));
}

std::vector<AcGePoint3d> VkDbHvacSpace::GetBoundary() const {
  std::vector<AcGePoint3d> corners;
  corners.reserve(m_boundary.size());
  for (const AcGePoint2d& corner : m_boundary)
    corners.push_back(entity::toWorld({corner.x, corner.y, m_position.z}, m_normal));
  return corners;
}

Acad::ErrorStatus VkDbHvacSpace::SetBoundary(const std::vector<AcGePoint3d>& corners) {
  if (!corners.empty() && corners.size() < kFewestCorners) return Acad::eInvalidInput;
  std::vector<AcGePoint2d> boundary;
  boundary.reserve(corners.size());
  for (const AcGePoint3d& corner : corners) {
    if (!entity::isFinite(corner)) return Acad::eInvalidInput;
    const AcGePoint3d flat = entity::toObject(corner, m_normal);
    boundary.emplace_back(flat.x, flat.y);
  }
  const auto status = assign(m_boundary, boundary);
  if (status == Acad::eOk) m_boundaryChanged = true;
  return status;
}

std::unique_ptr<AcDbText> VkDbHvacSpace::TextLine(const CString& text, int line) const {
  const double down = line * kLineSpacing * m_textHeight;
  const AcGePoint3d at(m_position.x + std::sin(m_rotation) * down, m_position.y - std::cos(m_rotation) * down,
                       m_position.z);
  auto made = std::make_unique<AcDbText>(at, text, AcDbObjectId(), m_textHeight, m_rotation);
  if (!m_normal.isEqualTo(AcGeVector3d::kZAxis)) made->transformBy(AcGeMatrix3d::planeToWorld(m_normal));
  return made;
}

std::vector<std::unique_ptr<AcDbEntity>> VkDbHvacSpace::Parts() const {
  std::vector<std::unique_ptr<AcDbEntity>> parts;
  if (m_boundary.empty()) {
    parts.push_back(std::make_unique<AcDbPoint>(GetPosition()));
  } else {
    auto outline = std::make_unique<AcDbPolyline>();
    outline->reserveVertices(static_cast<unsigned int>(m_boundary.size()));
    for (const AcGePoint2d& corner : m_boundary) outline->addVertexAt(outline->numVerts(), corner);
    outline->setClosed(true);
    outline->setElevation(m_position.z);
    outline->setNormal(m_normal);
    parts.push_back(std::move(outline));
  }
  int line = 0;
  for (const CString* text : {&m_number, &m_name})
    if (!text->IsEmpty()) parts.push_back(TextLine(*text, line++));
  return parts;
}

Adesk::Boolean VkDbHvacSpace::subWorldDraw(AcGiWorldDraw* worldDraw) {
  for (const auto& part : Parts()) part->worldDraw(*worldDraw);
  return Adesk::kTrue;
}

Acad::ErrorStatus VkDbHvacSpace::transformBy(const AcGeMatrix3d& matrix) {
  // A text at the place follows the matrix as the room's texts have to.
  const auto frame = TextLine(CString(), 0);
  if (const auto status = frame->transformBy(matrix); status != Acad::eOk) return status;
  std::vector<AcGePoint2d> boundary;
  boundary.reserve(m_boundary.size());
  bool isFinite = entity::isFinite(frame->position());
  for (const AcGePoint3d& corner : GetBoundary()) {
    const AcGePoint3d moved = entity::toObject(matrix * corner, frame->normal());
    isFinite = isFinite && entity::isFinite(moved);
    boundary.emplace_back(moved.x, moved.y);
  }
  if (!isFinite) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_normal = frame->normal();
  m_position = entity::toObject(frame->position(), m_normal);
  m_rotation = frame->rotation();
  m_textHeight = frame->height();
  m_boundaryChanged = m_boundaryChanged || !boundary.empty();
  m_boundary = std::move(boundary);
  return Acad::eOk;
}

Acad::ErrorStatus VkDbHvacSpace::explode(std::vector<AcDbEntity*>& parts) const {
  for (auto& part : Parts()) {
    part->setPropertiesFrom(this);
    parts.push_back(part.release()); // the caller's
  }
  return Acad::eOk;
}
