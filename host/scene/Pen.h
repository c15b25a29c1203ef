// What painters draw an entity with. Coordinates are those of the entity in its space or block; the pen knows
// where that is in the picture, and the entity's colour, linetype, weight and clip.
#pragma once

#include "host/scene/BuildScene.h"
#include "host/scene/DrawingVariables.h"
#include "host/scene/EntityTags.h"
#include "host/scene/Look.h"
#include "host/scene/PathPen.h"
#include "host/scene/Shape.h"
#include "host/scene/text/StyleLook.h"

#include <optional>

class AcDbEntity;
class AcGiSubEntityTraits;

namespace scene {

class SceneBuilder;

class Pen {
 public:
  // All but the look must outlive the pen.
  Pen(SceneBuilder& builder, const Frame& frame, const AcDbEntity& entity, const EntityTags& tags, Look look)
      : m_builder(builder), m_frame(frame), m_entity(entity), m_tags(tags), m_look(std::move(look)),
        m_clip(frame.clip) {}

  const AcDbEntity& entity() const { return m_entity; }
  const EntityTags& tags() const { return m_tags; }
  const Frame& frame() const { return m_frame; }
  std::int32_t clip() const { return m_clip; }
  const Look& look() const { return m_look; }
  AcDbDatabase& database() const;
  const DrawingVariables& variables() const;
  const Limits& limits() const;
  const TextMetrics& metrics() const;
  // Of a style's id or name; the plainest one for what the drawing lacks.
  const StyleLook& style(const AcDbObjectId& style) const;
  const StyleLook& style(const CString& name) const;

  // A path in world coordinates of the space or block, in those of a normal, or in any.
  PathPen path() const { return PathPen(m_frame.toScene); }
  PathPen path(const AcGeVector3d& normal) const;
  PathPen path(const AcGeMatrix3d& toSpace) const { return PathPen(m_frame.toScene * toSpace); }

  void stroke(PathPen& path, const StrokeOptions& options = {});
  void fill(PathPen& path, std::optional<Color> color = {});
  // What was recorded before, in its place here.
  void draw(const Shape& shape);
  // Strokes and fills go into the shape from here on and not into the picture.
  void recordIn(Shape& shape) { m_record = &shape; }
  // origin, along and up are in the coordinates of the matrix; along and up stand for a height of 1.
  void text(std::wstring text, const Font& font, const AcGeMatrix3d& toSpace, const AcGePoint3d& origin,
            const AcGeVector3d& along, const AcGeVector3d& up, std::optional<Color> color = {});
  void point(const AcGePoint3d& at);
  // Through both points without end; a ray begins in the first.
  void infiniteLine(const AcGePoint3d& from, const AcGePoint3d& through, bool isRay);

  // The entities of a block, through a matrix; what is by block there takes this entity's look.
  void block(const AcDbObjectId& block, const AcGeMatrix3d& toSpace);
  // An entity that belongs to this one, such as an attribute.
  void subEntity(const AcDbObjectId& id);
  // Another entity that this one draws in its place.
  void nested(const AcDbObjectId& id, const AcGeMatrix3d& toSpace);
  // What is drawn from here on shows only within the path.
  void clip(PathPen& path);
  // Another colour, weight or linetype from here on.
  void setColor(const Color& color) { m_look.color = color; }
  void setLook(const Look& look) { m_look = look; }
  // What an entity has set that draws itself, and what the traits began with. False when it draws on a layer
  // that is not shown.
  bool takeTraits(const AcGiSubEntityTraits& own, const AcGiSubEntityTraits& now);

  // Tells what of the entity is not in the picture: a short Chinese reason, counted over the drawing.
  void leaveOut(const CString& what);
  // How long 1 of the coordinates is in the picture, for widths.
  static double lengthScale(const AcGeMatrix3d& toScene);
  SceneBuilder& builder() const { return m_builder; }

 private:
  SceneBuilder& m_builder;
  const Frame& m_frame;
  const AcDbEntity& m_entity;
  const EntityTags& m_tags;
  Look m_look;
  std::int32_t m_clip;
  Shape* m_record = nullptr;
};

} // namespace scene
