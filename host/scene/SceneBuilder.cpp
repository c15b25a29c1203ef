#include "host/scene/SceneBuilder.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcRxClass.h"
#include "host/scene/Painter.h"
#include "host/scene/Pen.h"
#include "host/scene/WorldDrawPen.h"
#include "host/scene/text/TextMetrics.h"

#include <algorithm>

namespace scene {
namespace {

const EstimatedMetrics kEstimated;
constexpr const wchar_t* kTooMany = L"图块展开后的实体太多，其后的未画";

// Whether a block is all there before the objects of the drawing are read.
bool isReadWhole(const AcDbBlockTableRecord& block) {
  return !block.handle().isNull() && !block.isLayout() && !HasExtensionDictionary(block.record());
}

// With all that belongs to it.
bool isNumbered(const AcDbEntity& entity) {
  const auto& parts = entity.subEntities();
  return !entity.handle().isNull() && std::none_of(parts.begin(), parts.end(), [](const AcDbObjectId& id) {
    return id.handle().isNull();
  });
}

// Whether the height of a point doesn't matter to where it is in the picture.
bool isFlat(const AcGeMatrix3d& toScene) {
  return toScene.entry[0][2] == 0 && toScene.entry[1][2] == 0;
}

// In an insertion its attributes stand for it.
bool isLeftToAttributes(const AcDbEntity& entity) {
  const auto* definition = AcDbAttributeDefinition::cast(&entity);
  return definition && !definition->isConstant();
}

} // namespace

SceneBuilder::SceneBuilder(AcDbDatabase& database, const SceneOptions& options)
    : m_options(options), m_own(database), m_layers(database, options.forPlotting),
      m_metrics(options.metrics ? options.metrics : &kEstimated) {
  begin();
}

void SceneBuilder::begin() {
  m_scene = Scene();
  m_scene.pointMode = m_own.variables.pointMode;
  m_scene.pointSize = m_own.variables.pointSize;
  m_linetypes = LinetypePatterns();
  m_leftOut = LeftOut();
  m_entities = 0;
  m_exhausted = false;
}

void SceneBuilder::addSpace(const AcDbBlockTableRecord& space) {
  for (const AcDbObjectId& id : m_order.of(space)) addTopLevel(id);
}

void SceneBuilder::addTopLevel(const AcDbObjectId& id) {
  const auto* entity = AcDbEntity::cast(id.object());
  if (!entity || entity->isErased() || m_exhausted) return;
  beginGroup(id);
  drawEntity(Frame(), id);
  endGroup();
}

void SceneBuilder::beginGroup(const AcDbObjectId& entity) {
  m_group = Group();
  m_group.entity = entity;
  m_group.firstPrimitive = static_cast<std::uint32_t>(m_scene.primitives.size());
}

void SceneBuilder::endGroup() {
  m_group.primitiveCount = static_cast<std::uint32_t>(m_scene.primitives.size()) - m_group.firstPrimitive;
  if (m_group.primitiveCount == 0) return;
  m_scene.box.Add(m_group.box);
  m_scene.groups.push_back(m_group);
}

void SceneBuilder::addThrough(const Frame& frame, const AcDbBlockTableRecord& space,
                              const ge::Box2d& visible) {
  const Group outer = m_group;
  ge::Box2d seen = outer.box;
  for (const AcDbObjectId& id : m_order.of(space)) {
    if (m_exhausted) break;
    const Mark before = mark();
    m_group.box = ge::Box2d();
    m_group.unbounded = false;
    drawEntity(frame, id);
    if (m_group.unbounded || m_group.box.Overlaps(visible)) {
      seen.Add(visible);
      continue;
    }
    takeBack(before);
  }
  m_group.box = seen;
  m_group.unbounded = outer.unbounded;
}

SceneBuilder::Mark SceneBuilder::mark() const {
  return {m_scene.verbs.size(), m_scene.points.size(), m_scene.primitives.size(), m_scene.texts.size()};
}

void SceneBuilder::takeBack(const Mark& mark) {
  m_scene.verbs.resize(mark.verbs);
  m_scene.points.resize(mark.points);
  m_scene.primitives.resize(mark.primitives);
  m_scene.texts.resize(mark.texts);
}

Path SceneBuilder::outlineOf(const AcDbObjectId& id) {
  const Group outer = m_group;
  const Mark before = mark();
  drawEntity(Frame(), id);
  Path path;
  path.verbs.assign(m_scene.verbs.begin() + static_cast<std::ptrdiff_t>(before.verbs), m_scene.verbs.end());
  path.points.assign(m_scene.points.begin() + static_cast<std::ptrdiff_t>(before.points),
                     m_scene.points.end());
  takeBack(before);
  m_group = outer;
  return path;
}

Scene SceneBuilder::finish() {
  m_scene.leftOut = m_leftOut.sentences();
  Scene made = std::move(m_scene);
  begin();
  return made;
}

std::int32_t SceneBuilder::addClip(Path path, std::int32_t within) {
  m_scene.clips.push_back({std::move(path), within});
  return static_cast<std::int32_t>(m_scene.clips.size()) - 1;
}

std::int32_t SceneBuilder::pattern(const Look& look, double linetypeLength, bool bySegment) {
  const double scale = m_own.variables.linetypeScale * look.linetypeScale * linetypeLength;
  const std::size_t known = m_scene.patterns.size();
  const std::int32_t index = m_linetypes.find(look.linetype, scale, bySegment, m_scene.patterns);
  if (m_scene.patterns.size() > known && LinetypePatterns::hasFigures(look.linetype))
    m_leftOut.add(L"线型中的文字和形未画", look.linetype.handle());
  return index;
}

void SceneBuilder::leaveOut(const CString& what, const AcDbEntity& entity) {
  m_leftOut.add(what, m_drawing == &m_own ? entity.handle() : m_group.entity.handle());
}

void SceneBuilder::exhaust(const wchar_t* what) {
  if (!m_exhausted) m_leftOut.add(what, m_group.entity.handle());
  m_exhausted = true;
}

bool SceneBuilder::add(Primitive primitive, PathView path) {
  if (m_exhausted) return false;
  if (m_scene.points.size() + path.points.size() > m_options.limits.points) {
    exhaust(L"图形太大，其后的实体未画");
    return false;
  }
  primitive.firstVerb = static_cast<std::uint32_t>(m_scene.verbs.size());
  primitive.verbCount = static_cast<std::uint32_t>(path.verbs.size());
  primitive.firstPoint = static_cast<std::uint32_t>(m_scene.points.size());
  primitive.pointCount = static_cast<std::uint32_t>(path.points.size());
  m_scene.verbs.insert(m_scene.verbs.end(), path.verbs.begin(), path.verbs.end());
  m_scene.points.insert(m_scene.points.end(), path.points.begin(), path.points.end());
  m_scene.primitives.push_back(primitive);
  if (primitive.kind == Primitive::Kind::ray || primitive.kind == Primitive::Kind::xline) {
    m_group.unbounded = true;
    return true;
  }
  ge::Box2d box = BoxOf(path);
  const double half = primitive.width / 2;
  if (half > 0) box = box.Grown(half);
  if (primitive.clip != Primitive::kNone) {
    const ge::Box2d clip = BoxOf(m_scene.clips[static_cast<std::size_t>(primitive.clip)].path.view());
    box = {std::max(box.minX, clip.minX), std::max(box.minY, clip.minY), std::min(box.maxX, clip.maxX),
           std::min(box.maxY, clip.maxY)};
    if (box.IsEmpty()) return true;
  }
  m_group.box.Add(box);
  return true;
}

bool SceneBuilder::addText(Primitive primitive, TextRun run) {
  const AcGePoint2d end = run.origin + run.along * run.advance;
  const AcGeVector2d below = run.up * -0.3; // what hangs under the base line
  const AcGePoint2d corners[] = {run.origin + below, end + below, end + run.up, run.origin + run.up};
  const Verb verbs[] = {Verb::move, Verb::line, Verb::line, Verb::line};
  primitive.text = static_cast<std::uint32_t>(m_scene.texts.size());
  if (!add(primitive, {verbs, corners})) return false;
  m_scene.texts.push_back(std::move(run));
  return true;
}

void SceneBuilder::drawBlock(const Frame& outer, std::int32_t clip, const Look& look,
                             const AcDbEntity& insertion, const AcDbObjectId& block,
                             const AcGeMatrix3d& toSpace) {
  const auto* record = AcDbBlockTableRecord::cast(block.object());
  if (!record || record->isErased()) return leaveOut(L"没有图块定义", insertion);
  if (std::find(m_open.begin(), m_open.end(), block) != m_open.end())
    return leaveOut(L"图块包含自身", insertion);
  if (m_options.whileReading && !isReadWhole(*record)) return wait();
  if (outer.depth >= m_options.limits.depth) return leaveOut(L"图块嵌套太深", insertion);
  const auto* contents = record;
  const DrawingLooks* outside = m_drawing;
  if (const AcDbDatabase* referenced = record->xrefDatabase()) {
    m_drawing = &drawingOf(*record);
    contents = AcDbBlockTableRecord::cast(referenced->modelSpaceId().object());
  }
  const Frame inner = blockFrame(outer, clip, look, insertion, toSpace);
  m_open.push_back(block);
  BlockShapes* const outerBlock = m_learnt;
  // Which layers a viewport freezes nobody else knows.
  m_learnt = inner.frozen ? nullptr : &m_blockShapes[{block, inner.byBlock, inner.layer}];
  if (m_learnt && m_learnt->state == BlockShapes::State::whole && isFlat(inner.toScene))
    drawShapes(inner, *m_learnt);
  else
    drawContents(inner, *contents);
  m_learnt = outerBlock;
  m_open.pop_back();
  m_drawing = outside;
}

void SceneBuilder::drawContents(const Frame& frame, const AcDbBlockTableRecord& contents) {
  const bool isNew = m_learnt && m_learnt->state == BlockShapes::State::unknown;
  if (isNew)
    m_learnt->state = BlockShapes::State::whole;
  else
    m_learnt = nullptr;
  for (const AcDbObjectId& id : m_order.of(contents)) {
    if (m_exhausted) break;
    drawEntity(frame, id);
  }
  if (!isNew) return;
  if (m_exhausted) noteMixed();
  if (m_learnt->state == BlockShapes::State::mixed) m_learnt->parts.clear();
}

void SceneBuilder::drawShapes(const Frame& frame, const BlockShapes& shapes) {
  for (const BlockShapes::Part& part : shapes.parts) {
    if (m_exhausted) return;
    if (++m_entities > m_options.limits.entities) return exhaust(kTooMany);
    Pen(*this, frame, *part.entity, part.drawn->tags, part.look).draw(*part.drawn->shape);
  }
}

void SceneBuilder::wait() {
  m_scene.isProvisional = true;
  noteMixed();
}

void SceneBuilder::noteMixed() {
  if (m_learnt) m_learnt->state = BlockShapes::State::mixed;
}

Frame SceneBuilder::blockFrame(const Frame& outer, std::int32_t clip, const Look& look,
                               const AcDbEntity& insertion, const AcGeMatrix3d& toSpace) const {
  Frame inner;
  inner.clip = clip;
  inner.frozen = outer.frozen;
  inner.toScene = outer.toScene * toSpace;
  inner.inBlock = true;
  inner.byBlock = look;
  inner.layer = m_looks.layerOf(outer, insertion.layerId());
  inner.linetypeLength = outer.linetypeLength * Pen::lengthScale(toSpace);
  inner.depth = outer.depth + 1;
  return inner;
}

// Two blocks that refer to one file have a drawing each, and so have their layers.
const DrawingLooks& SceneBuilder::drawingOf(const AcDbBlockTableRecord& block) {
  auto& looks = m_referenced[block.xrefDatabase()];
  if (!looks) {
    looks = std::make_unique<DrawingLooks>(*block.xrefDatabase(), m_own.variables);
    m_layers.addReferenced(*block.xrefDatabase(), block.name());
  }
  return *looks;
}

void SceneBuilder::drawNested(const Frame& outer, std::int32_t clip, const Look& look,
                              const AcDbEntity& whole, const AcDbObjectId& nested,
                              const AcGeMatrix3d& toSpace) {
  if (outer.depth >= m_options.limits.depth) return leaveOut(L"图块嵌套太深", whole);
  drawEntity(blockFrame(outer, clip, look, whole, toSpace), nested);
}

void SceneBuilder::drawPart(const Frame& outer, std::int32_t clip, const Look& look, const AcDbEntity& whole,
                            const AcDbObjectId& part) {
  Frame frame = outer;
  frame.clip = clip;
  frame.inBlock = true;
  frame.byBlock = look;
  frame.layer = m_looks.layerOf(outer, whole.layerId());
  drawEntity(frame, part);
}

// By the class where it knows the name of its records: the record itself is seldom needed.
Painter SceneBuilder::painterOf(const AcDbEntity& entity) {
  const AcRxClass* type = entity.isA();
  if (!*type->dxfName()) return PainterOf(entity.record().type());
  const auto [at, isNew] = m_painters.try_emplace(type);
  if (isNew) at->second = PainterOf(type->dxfName());
  return at->second;
}

BlockEntity& SceneBuilder::keep(const AcDbEntity& entity) {
  const auto [at, isNew] = m_kept.try_emplace(entity.objectId());
  if (isNew) at->second = {EntityTags(entity.record()), painterOf(entity), nullptr};
  return at->second;
}

void SceneBuilder::drawShape(Pen& pen, BlockEntity& kept) {
  if (!kept.shape) {
    kept.shape = std::make_unique<Shape>();
    const Frame own;
    Pen recording(*this, own, pen.entity(), kept.tags, pen.look());
    recording.recordIn(*kept.shape);
    kept.painter.draw(recording);
  }
  if (!kept.shape->isWhole) {
    noteMixed();
    return kept.painter.draw(pen);
  }
  if (m_learnt) m_learnt->parts.push_back({&pen.entity(), &kept, pen.look()});
  pen.draw(*kept.shape);
}

void SceneBuilder::drawEntity(const Frame& frame, const AcDbObjectId& id) {
  const auto* entity = AcDbEntity::cast(id.object());
  if (!entity || entity->isErased() || entity->visibility() == AcDb::kInvisible) return;
  if (++m_entities > m_options.limits.entities) return exhaust(kTooMany);
  if (m_options.whileReading && !(isNumbered(*entity) && m_layers.knows(entity->layerId()))) return wait();
  BlockEntity* kept = frame.depth > 0 ? &keep(*entity) : nullptr;
  const Painter painter = kept ? kept->painter : painterOf(*entity);
  const AcDbObjectId layer = m_looks.layerOf(frame, entity->layerId());
  const bool hidden = m_looks.isHidden(frame, layer, painter.hides == Hides::frozen);
  if (hidden && painter.hides != Hides::nothing) return;
  const EntityTags own = kept ? EntityTags() : EntityTags(entity->record());
  const EntityTags& tags = kept ? kept->tags : own;
  Look look = m_looks.lookOf(frame, *entity, layer);
  look.hidden = hidden;
  Pen pen(*this, frame, *entity, tags, look);
  if (m_options.whileReading && painter.draw && painter.reach == Reach::drawing) return wait();
  if (kept && painter.reach == Reach::shape && isFlat(frame.toScene)) return drawShape(pen, *kept);
  if (!isLeftToAttributes(*entity)) noteMixed();
  if (painter.draw) return painter.draw(pen);
  m_scene.asksPlugIns = true;
  if (!m_options.asksPlugIns) return;
  WorldDrawPen draw(pen);
  draw.entity();
  if (draw.isEmpty()) leaveOut(entity->dxfName() + L" 未画", *entity);
}

Scene BuildScene(AcDbDatabase& database, const AcDbObjectId& space, const SceneOptions& options) {
  SceneBuilder builder(database, options);
  const auto* block = AcDbBlockTableRecord::cast(space.object());
  if (block) builder.addSpace(*block);
  return builder.finish();
}

Scene BuildScene(AcDbDatabase& database, std::span<const AcDbObjectId> entities,
                 const SceneOptions& options) {
  SceneBuilder builder(database, options);
  for (const AcDbObjectId& id : entities) builder.addTopLevel(id);
  return builder.finish();
}

} // namespace scene
