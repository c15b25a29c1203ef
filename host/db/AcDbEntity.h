// What is drawn: an object in a block, with layer, colour, linetype, line weight and visibility.
#pragma once

#include "host/db/AcCmColor.h"
#include "host/db/AcDbExtents.h"
#include "host/db/AcDbObject.h"
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
  Acad::ErrorStatus setLayer(const wchar_t* name);
  Acad::ErrorStatus setLayer(const AcDbObjectId& id);

  int colorIndex() const { return m_colorIndex; }
  AcCmColor color() const { return AcCmColor(m_colorIndex); }
  Acad::ErrorStatus setColorIndex(int index); // 0 to 256, see AcCmColor

  CString linetype() const; // "ByLayer" where none is set
  AcDbObjectId linetypeId() const { return m_linetype; }
  Acad::ErrorStatus setLinetype(const wchar_t* name); // eKeyNotFound
  Acad::ErrorStatus setLinetype(const AcDbObjectId& id);
  double linetypeScale() const { return m_linetypeScale; }
  Acad::ErrorStatus setLinetypeScale(double scale); // above 0, eInvalidInput otherwise

  AcDb::LineWeight lineWeight() const { return static_cast<AcDb::LineWeight>(m_lineWeight); }
  Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight); // eInvalidInput for one that no file may hold
  AcDb::Visibility visibility() const { return m_visible ? AcDb::kVisible : AcDb::kInvisible; }
  Acad::ErrorStatus setVisibility(AcDb::Visibility visibility);

  // Draws itself as lines, arcs, circles and texts. Entities that the host doesn't understand draw nothing.
  virtual void worldDraw(AcGiWorldDraw& draw) const;
  // The box around what it draws. eInvalidExtents when it draws nothing.
  virtual Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const;
  // eNotApplicable for entities whose geometry the host doesn't understand, eCannotScaleNonUniformly where
  // the class can't follow the matrix; the entity stays as it was then.
  virtual Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix);

  // The record type in drawing files ("LINE"), also of entities that the host keeps as they came.
  virtual CString dxfName() const;

  Acad::ErrorStatus erase(bool erasing = true) override;

  // Entities that belong to this one and follow it in the file (attributes, vertices, the end mark).
  const std::vector<AcDbObjectId>& subEntities() const;
  void addSubEntity(const AcDbObjectId& id);

  // Drawing order across the spaces that share the ENTITIES section; later is higher.
  std::uint32_t rank() const { return m_rank; }
  void setRank(std::uint32_t rank) { m_rank = rank; }
  bool isInPaperSpace() const { return m_paperSpace; }
  void setPaperSpace(bool paperSpace) { m_paperSpace = paperSpace; }

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcDbObjectId m_layer;
  AcDbObjectId m_linetype;
  double m_linetypeScale = 1.0;
  short m_colorIndex = AcCmColor::kByLayer;
  short m_lineWeight = AcDb::kLnWtByLayer;
  bool m_visible = true;
  bool m_paperSpace = false;
  std::uint32_t m_rank = 0;
  std::unique_ptr<std::vector<AcDbObjectId>> m_subEntities;
};
