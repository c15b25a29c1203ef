// What is drawn: an object in a block, with layer, colour, linetype, line weight and visibility.
#pragma once

#include "host/db/AcCmColor.h"
#include "host/db/AcDbExtents.h"
#include "host/db/AcDbObject.h"
#include "host/db/Adesk.h"
#include "host/ge/AcGeMatrix3d.h"

#include <memory>
#include <vector>

class AcGiWorldDraw;

class AcDbEntity : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbEntity);

 public:
  AcDbObjectId blockId() const { return ownerId(); }

  CString layer() const; // "0" for an entity outside a drawing
  AcDbObjectId layerId() const { return m_layer; }
  // eKeyNotFound for a name that the drawing lacks, eNoDatabase outside a drawing (setLayer by id works).
  // The setters of properties take the sub-entities (attributes, vertices) along unless told not to.
  Acad::ErrorStatus setLayer(const wchar_t* name, bool doSubents = true);
  Acad::ErrorStatus setLayer(const AcDbObjectId& id, bool doSubents = true);

  int colorIndex() const { return m_colorIndex; }
  AcCmColor color() const { return AcCmColor(m_colorIndex); }
  // Another index takes a true colour away.
  Acad::ErrorStatus setColorIndex(int index, bool doSubents = true); // 0 to 256, see AcCmColor
  // The true colour that a file has beside the index and that holds in its place, 0xRRGGBB; -1 for none.
  int trueColor() const { return m_trueColor; }
  // As files have it: 0 as the layer, 0x01000000 as the block, 0x02000000 and the opacity, 0 to 255.
  int transparency() const { return m_transparency; }

  CString linetype() const; // "ByLayer" where none is set
  AcDbObjectId linetypeId() const { return m_linetype; }
  Acad::ErrorStatus setLinetype(const wchar_t* name, bool doSubents = true); // eKeyNotFound
  Acad::ErrorStatus setLinetype(const AcDbObjectId& id, bool doSubents = true);
  double linetypeScale() const { return m_linetypeScale; }
  // Above 0, eInvalidInput otherwise.
  Acad::ErrorStatus setLinetypeScale(double scale, bool doSubents = true);

  AcDb::LineWeight lineWeight() const { return static_cast<AcDb::LineWeight>(m_lineWeight); }
  // eInvalidInput for a weight that no file may hold.
  Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight, bool doSubents = true);
  AcDb::Visibility visibility() const { return m_visible ? AcDb::kVisible : AcDb::kInvisible; }
  Acad::ErrorStatus setVisibility(AcDb::Visibility visibility);

  // Layer, colour, linetype, its scale, weight and visibility of another entity. eNullObjectPointer;
  // eWrongDatabase for one of another drawing.
  Acad::ErrorStatus setPropertiesFrom(const AcDbEntity* other);
  // What a new entity gets from the drawing's settings: current layer, colour, linetype, its scale and
  // weight. Null stands for the working drawing. The first failure; what it concerns stays as it was.
  Acad::ErrorStatus setDatabaseDefaults(const AcDbDatabase* database = nullptr);

  // Draws itself as lines, arcs, circles and texts. Entities that the host doesn't understand draw nothing.
  // The default hands on to subWorldDraw, which custom classes override.
  virtual void worldDraw(AcGiWorldDraw& draw) const;
  // True: nothing is left to draw that would depend on a viewport.
  virtual Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw);
  // The box around what it draws. eInvalidExtents when it draws nothing.
  virtual Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const;
  // eNotApplicable for entities whose geometry the host doesn't understand, eCannotScaleNonUniformly where
  // the class can't follow the matrix; the entity stays as it was then.
  // Other failures: eInvalidInput for a matrix that is not finite, eNotOpenForWrite.
  virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix);
  // A clone (see AcDbObject::clone) that is transformed; null and the status of transformBy on failure. The
  // caller owns it.
  Acad::ErrorStatus getTransformedCopy(const AcGeMatrix3d& matrix, AcDbEntity*& copy) const;
  // The points in common with another entity, appended. Curves and points take part; eNotApplicable for
  // others unless their class overrides subIntersectWith. No point in common is eOk.
  Acad::ErrorStatus intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                  std::vector<AcGePoint3d>& points) const;
  virtual Acad::ErrorStatus subIntersectWith(const AcDbEntity& other, AcDb::Intersect type,
                                             std::vector<AcGePoint3d>& points) const;
  // The parts as new entities that the caller owns, appended; the entity itself stays. eCannotExplodeEntity
  // for what has no parts; nothing is appended then.
  virtual Acad::ErrorStatus explode(std::vector<AcDbEntity*>& parts) const;

  // The record type in drawing files ("LINE"), also of entities that the host keeps as they came.
  virtual CString dxfName() const;

  Acad::ErrorStatus erase(bool erasing = true) override;
  void takePlaceOf(AcDbObject& other) override;

  // Entities that belong to this one and follow it in the file (attributes, vertices, the end mark).
  const std::vector<AcDbObjectId>& subEntities() const;
  void addSubEntity(const AcDbObjectId& id);
  // Those of an entity outside a drawing, which enter the drawing with it.
  const std::vector<std::unique_ptr<AcDbEntity>>& newSubEntities() const;
  void addNewSubEntity(std::unique_ptr<AcDbEntity> entity);
  std::vector<std::unique_ptr<AcDbEntity>> takeNewSubEntities();
  bool hasSubEntities() const; // one that isn't erased

  // Drawing order across the spaces that share the ENTITIES section; later is higher.
  std::uint32_t rank() const { return m_rank; }
  void setRank(std::uint32_t rank) { m_rank = rank; }
  bool isInPaperSpace() const { return m_paperSpace; }
  void setPaperSpace(bool paperSpace) { m_paperSpace = paperSpace; }

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;
  AcDbObject* cloneInto(std::unique_ptr<AcDbObject> made) const override;

 private:
  template <typename Setter> Acad::ErrorStatus withSubEntities(bool doSubents, Setter set);

  AcDbObjectId m_layer;
  AcDbObjectId m_linetype;
  double m_linetypeScale = 1.0;
  short m_colorIndex = AcCmColor::kByLayer;
  short m_lineWeight = AcDb::kLnWtByLayer;
  bool m_visible = true;
  bool m_paperSpace = false;
  std::int32_t m_trueColor = -1;
  std::int32_t m_transparency = 0;
  std::uint32_t m_rank = 0;
  struct SubEntities {
    std::vector<AcDbObjectId> ids;
    std::vector<std::unique_ptr<AcDbEntity>> fresh;
  };
  std::unique_ptr<SubEntities> m_subEntities;
};
