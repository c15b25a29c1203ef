// VIEWPORT: a window in a layout through which model space is seen.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/scene/Pen.h"
#include "host/scene/SceneBuilder.h"
#include "host/scene/painters/Painters.h"

#include <cmath>
#include <numbers>

namespace scene {
namespace {

constexpr long long kPaperItself = 1; // the number of the viewport that stands for the sheet
enum Flag : long long { kPerspective = 1, kOff = 0x20000 };

// From model space to the layout.
std::optional<AcGeMatrix3d> viewMatrix(const EntityTags& tags) {
  const double scale = tags.real(41) / tags.real(45);
  if (!std::isfinite(scale) || !(scale > 0)) return std::nullopt;
  const AcGePoint3d center = tags.point(10);
  const AcGePoint3d viewCenter = tags.point(12);
  const AcGePoint3d target = tags.point(17);
  const AcGeVector3d direction = tags.optionalPoint(16).value_or(AcGePoint3d(0, 0, 1)).asVector();
  return AcGeMatrix3d::translation(AcGeVector3d(center.x, center.y, 0)) * AcGeMatrix3d::scaling(scale) *
         AcGeMatrix3d::translation(AcGeVector3d(-viewCenter.x, -viewCenter.y, 0)) *
         AcGeMatrix3d::rotation(tags.radians(51), AcGeVector3d(0, 0, 1)) *
         AcGeMatrix3d::worldToPlane(direction.isZeroLength() ? AcGeVector3d(0, 0, 1) : direction.normal()) *
         AcGeMatrix3d::translation(-target.asVector());
}

PathPen border(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const AcGePoint3d center = tags.point(10);
  const double x = std::fabs(tags.real(40)) / 2;
  const double y = std::fabs(tags.real(41)) / 2;
  PathPen path = pen.path();
  path.move(center + AcGeVector3d(-x, -y, 0));
  path.line(center + AcGeVector3d(x, -y, 0));
  path.line(center + AcGeVector3d(x, y, 0));
  path.line(center + AcGeVector3d(-x, y, 0));
  path.close();
  return path;
}

// The sheet has number 1. In a layout that was never shown none has a number, and the sheet's stands first.
bool isPaperItself(const Pen& pen) {
  const long long number = pen.tags().integer(69);
  const auto* layout = AcDbBlockTableRecord::cast(pen.entity().ownerId().object());
  if (number != 0 || !layout) return number == kPaperItself;
  for (const AcDbObjectId& id : layout->entities()) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (entity && entity->record().type() == "VIEWPORT") return entity == &pen.entity();
  }
  return false;
}

// Whether it shows nothing. Its status tells only which are shown at the moment of saving.
bool isOff(const EntityTags& tags) {
  return tags.has(90) ? (tags.integer(90) & kOff) != 0 : tags.integer(68, 1) == 0;
}

AcDbObjectId objectOf(const Pen& pen, std::string_view handle) {
  AcDbObjectId id;
  pen.database().getAcDbObjectId(id, false, AcDbHandle::fromHex(handle));
  return id;
}

} // namespace

void painters::Viewport(Pen& pen) {
  const EntityTags& tags = pen.tags();
  const AcDbObjectId modelSpace = pen.database().modelSpaceId();
  const auto* model = AcDbBlockTableRecord::cast(modelSpace.object());
  const bool inLayout = !pen.frame().inBlock && pen.entity().ownerId() != modelSpace;
  if (!inLayout || isPaperItself(pen) || !pen.builder().options().viewports || !model) return;
  // Old files keep the view in extended data.
  if (!tags.has(45)) return pen.leaveOut(L"旧格式的视口内容");
  const auto matrix = viewMatrix(tags);
  PathPen outline = border(pen);
  if (isOff(tags) || !matrix || outline.isBroken()) {
    if (!pen.look().hidden) pen.stroke(outline, {.solid = true});
    return;
  }
  if ((tags.integer(90) & kPerspective) != 0) pen.leaveOut(L"视口的透视投影");
  std::unordered_set<AcDbObjectId> frozen;
  for (const DxfTag& tag : tags)
    if (tag.code == 331 || tag.code == 341) frozen.insert(objectOf(pen, tag.value));

  Path shape = outline.path();
  if (const DxfTag* clip = tags.find(340)) {
    Path drawn = pen.builder().outlineOf(objectOf(pen, clip->value));
    if (!drawn.isEmpty()) shape = std::move(drawn);
  } else if (!pen.look().hidden) {
    pen.stroke(outline, {.solid = true});
  }
  const ge::Box2d visible = BoxOf(shape.view());
  Frame frame;
  frame.toScene = pen.frame().toScene * *matrix;
  frame.clip = pen.builder().addClip(std::move(shape), pen.clip());
  frame.frozen = &frozen;
  frame.linetypeLength = pen.variables().paperLinetypeScale ? 1 : tags.real(41) / tags.real(45);
  pen.builder().addThrough(frame, *model, visible);
}

} // namespace scene
