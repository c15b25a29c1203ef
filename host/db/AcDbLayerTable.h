// Layers: state, colour, linetype and line weight of what stands on them.
#pragma once

#include "host/db/AcCmColor.h"
#include "host/db/AcDbSymbolTable.h"

class AcDbLayerTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord);

 public:
  bool isOff() const { return m_off; }
  bool isFrozen() const { return flag(1); }
  bool isLocked() const { return flag(4); }
  // Frozen by default in new viewports.
  bool VPDFLT() const { return flag(2); }
  bool isPlottable() const { return m_plottable; }
  // The setters need the record open for write and give eNotOpenForWrite otherwise.
  Acad::ErrorStatus setIsOff(bool off);
  // eInvalidInput for the current layer: it can't be frozen.
  Acad::ErrorStatus setIsFrozen(bool frozen);
  Acad::ErrorStatus setIsLocked(bool locked);
  Acad::ErrorStatus setVPDFLT(bool frozen);
  Acad::ErrorStatus setIsPlottable(bool plottable);

  AcCmColor color() const { return AcCmColor(m_colorIndex); }
  // By layer and by block mean nothing on a layer: 1 to 255, eInvalidInput otherwise.
  Acad::ErrorStatus setColor(const AcCmColor& color);
  AcDbObjectId linetypeObjectId() const { return m_linetype; }
  // eNullObjectId, eNotThatKindOfClass, and eInvalidInput for by layer and by block, which mean nothing on a
  // layer, leave the linetype as it was.
  Acad::ErrorStatus setLinetypeObjectId(const AcDbObjectId& linetype);
  AcDb::LineWeight lineWeight() const { return static_cast<AcDb::LineWeight>(m_lineWeight); }
  // eInvalidInput for a weight that no drawing may hold. The default weight is the natural one for a layer.
  Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  bool m_off = false;
  bool m_plottable = true;
  short m_colorIndex = 7;
  short m_lineWeight = AcDb::kLnWtByLwDefault;
  AcDbObjectId m_linetype;
};

ZP_SYMBOL_TABLE(AcDbLayer);
