// The work behind BuildScene: resolves looks, goes through blocks, calls painters, and counts what it costs.
#pragma once

#include "host/scene/BuildScene.h"
#include "host/scene/DrawOrder.h"
#include "host/scene/DrawingVariables.h"
#include "host/scene/EntityTags.h"
#include "host/scene/LayerLooks.h"
#include "host/scene/LeftOut.h"
#include "host/scene/LinetypePatterns.h"
#include "host/scene/Look.h"
#include "host/scene/text/StyleLook.h"

#include <unordered_map>

class AcDbBlockTableRecord;
class AcDbEntity;

namespace scene {

class SceneBuilder {
 public:
  SceneBuilder(AcDbDatabase& database, const SceneOptions& options);

  void addSpace(const AcDbBlockTableRecord& space);
  void addTopLevel(const AcDbObjectId& id);
  // Entities of another space within the entity that is being drawn, as a viewport shows them.
  void addThrough(const Frame& frame, const AcDbBlockTableRecord& space, const ge::Box2d& visible);
  // What an entity draws, without leaving it in the picture; empty for one that is hidden.
  Path outlineOf(const AcDbObjectId& id);
  Scene finish();

  // For pens:

  AcDbDatabase& database() const { return m_database; }
  const SceneOptions& options() const { return m_options; }
  const DrawingVariables& variables() const { return m_variables; }
  const TextMetrics& metrics() const { return *m_metrics; }
  StyleLooks& styles() { return m_styles; }
  LeftOut& leftOut() { return m_leftOut; }
  std::int32_t addClip(Path path, std::int32_t within);
  std::int32_t pattern(const Look& look, double linetypeLength, bool bySegment);
  // False when there is no room left.
  bool add(Primitive primitive, PathView path);
  bool addText(Primitive primitive, TextRun run);
  void drawBlock(const Frame& outer, const Look& look, const AcDbEntity& insertion, const AcDbObjectId& block,
                 const AcGeMatrix3d& toSpace);
  // An entity that belongs to another and follows its layer as the contents of a block do.
  void drawPart(const Frame& outer, const Look& look, const AcDbEntity& whole, const AcDbObjectId& part);
  void drawEntity(const Frame& frame, const AcDbObjectId& id);
  bool isExhausted() const { return m_exhausted; }

 private:
  const EntityTags& tagsOf(const AcDbEntity& entity, bool keep, EntityTags& own);
  AcDbObjectId effectiveLayer(const Frame& frame, const AcDbEntity& entity) const;
  bool isHidden(const Frame& frame, const AcDbObjectId& layer, bool isInsertion) const;
  Look lookOf(const Frame& frame, const AcDbEntity& entity, const EntityTags& tags,
              const AcDbObjectId& layer) const;
  // How far the scene was filled, to take back what was added since.
  struct Mark {
    std::size_t verbs, points, primitives, texts;
  };
  Mark mark() const;
  void takeBack(const Mark& mark);
  void beginGroup(const AcDbObjectId& entity);
  void endGroup();
  void exhaust(const wchar_t* what);

  AcDbDatabase& m_database;
  SceneOptions m_options;
  DrawingVariables m_variables;
  LayerLooks m_layers;
  LinetypePatterns m_linetypes;
  StyleLooks m_styles;
  LeftOut m_leftOut;
  DrawOrder m_order;
  const TextMetrics* m_metrics;
  Scene m_scene;
  Group m_group;
  std::unordered_map<AcDbObjectId, EntityTags> m_kept; // of entities in blocks, which come again
  std::vector<AcDbObjectId> m_open;                    // blocks that are being drawn
  std::size_t m_entities = 0;
  bool m_exhausted = false;
};

} // namespace scene
