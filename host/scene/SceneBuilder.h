// The work behind BuildScene: resolves looks, goes through blocks, calls painters, and counts what it costs.
#pragma once

#include "host/scene/BlockShapes.h"
#include "host/scene/BuildScene.h"
#include "host/scene/DrawOrder.h"
#include "host/scene/DrawingLooks.h"
#include "host/scene/LayerLooks.h"
#include "host/scene/LeftOut.h"
#include "host/scene/LinetypePatterns.h"
#include "host/scene/LookRules.h"

#include <unordered_map>

class AcDbBlockTableRecord;
class AcRxClass;

namespace scene {

class Pen;

class SceneBuilder {
 public:
  SceneBuilder(AcDbDatabase& database, const SceneOptions& options);

  void addSpace(const AcDbBlockTableRecord& space);
  void addTopLevel(const AcDbObjectId& id);
  // Entities of another space within the entity that is being drawn, as a viewport shows them.
  void addThrough(const Frame& frame, const AcDbBlockTableRecord& space, const ge::Box2d& visible);
  // What an entity draws, without leaving it in the picture; empty for one that is hidden.
  Path outlineOf(const AcDbObjectId& id);
  // What was added since the last time. What was learnt of layers, styles and blocks stays for the next one.
  Scene finish();
  void setPointLimit(std::size_t points) { m_options.limits.points = points; }

  // For pens:

  // The drawing whose entities are being drawn: within an external reference the one that is referred to.
  AcDbDatabase& database() const { return m_drawing->database; }
  const SceneOptions& options() const { return m_options; }
  const DrawingVariables& variables() const { return m_drawing->variables; }
  const TextMetrics& metrics() const { return *m_metrics; }
  const StyleLooks& styles() const { return m_drawing->styles; }
  const LookRules& looks() const { return m_looks; }
  // Tells what of an entity is not in the picture. Within an external reference the user can find only the
  // entity of the space that shows it.
  void leaveOut(const CString& what, const AcDbEntity& entity);
  // Something of the drawing that is being read isn't there yet.
  void wait();
  std::int32_t addClip(Path path, std::int32_t within);
  std::int32_t pattern(const Look& look, double linetypeLength, bool bySegment);
  // False when there is no room left.
  bool add(Primitive primitive, PathView path);
  bool addText(Primitive primitive, TextRun run);
  void drawBlock(const Frame& outer, std::int32_t clip, const Look& look, const AcDbEntity& insertion,
                 const AcDbObjectId& block, const AcGeMatrix3d& toSpace);
  // An entity that belongs to another and follows its layer as the contents of a block do.
  void drawPart(const Frame& outer, std::int32_t clip, const Look& look, const AcDbEntity& whole,
                const AcDbObjectId& part);
  // The same of any entity, through a matrix.
  void drawNested(const Frame& outer, std::int32_t clip, const Look& look, const AcDbEntity& whole,
                  const AcDbObjectId& nested, const AcGeMatrix3d& toSpace);
  void drawEntity(const Frame& frame, const AcDbObjectId& id);
  bool isExhausted() const { return m_exhausted; }

 private:
  Painter painterOf(const AcDbEntity& entity);
  BlockEntity& keep(const AcDbEntity& entity);
  void drawShape(Pen& pen, BlockEntity& kept);
  void drawContents(const Frame& frame, const AcDbBlockTableRecord& contents);
  void drawShapes(const Frame& frame, const BlockShapes& shapes);
  // Something in the block that is being drawn is no shape.
  void noteMixed();
  Frame blockFrame(const Frame& outer, std::int32_t clip, const Look& look, const AcDbEntity& insertion,
                   const AcGeMatrix3d& toSpace) const;
  const DrawingLooks& drawingOf(const AcDbBlockTableRecord& block);
  // How far the scene was filled, to take back what was added since.
  struct Mark {
    std::size_t verbs, points, primitives, texts;
  };
  Mark mark() const;
  void takeBack(const Mark& mark);
  void begin();
  void beginGroup(const AcDbObjectId& entity);
  void endGroup();
  void exhaust(const wchar_t* what);

  SceneOptions m_options;
  DrawingLooks m_own;
  std::unordered_map<const AcDbDatabase*, std::unique_ptr<DrawingLooks>> m_referenced;
  const DrawingLooks* m_drawing = &m_own;
  LayerLooks m_layers;
  LookRules m_looks{m_layers};
  LinetypePatterns m_linetypes;
  LeftOut m_leftOut;
  DrawOrder m_order;
  const TextMetrics* m_metrics;
  Scene m_scene;
  Group m_group;
  std::unordered_map<const AcRxClass*, Painter> m_painters;
  std::unordered_map<AcDbObjectId, BlockEntity> m_kept;
  std::unordered_map<BlockUse, BlockShapes, BlockUse::Hash> m_blockShapes;
  BlockShapes* m_learnt = nullptr;  // of the block that is being drawn, where it isn't known yet
  std::vector<AcDbObjectId> m_open; // blocks that are being drawn
  std::size_t m_entities = 0;
  bool m_exhausted = false;
};

} // namespace scene
