// What is drawn next is drawn with these: set by an entity ahead of its parts, read by who draws.
#pragma once

#include "host/db/AcCmColor.h"
#include "host/db/AcDb.h"
#include "host/db/AcDbObjectId.h"

class AcGiSubEntityTraits {
 public:
  // Colour by index, 0 by block, 256 by layer. What lies outside is by layer.
  void setColor(int index) {
    m_color = index < AcCmColor::kByBlock || index > AcCmColor::kByLayer ? AcCmColor::kByLayer : index;
  }
  void setLayer(const AcDbObjectId& layer) { m_layer = layer; }
  void setLineType(const AcDbObjectId& linetype) { m_linetype = linetype; }
  void setLineWeight(AcDb::LineWeight weight) { m_lineWeight = weight; }
  int color() const { return m_color; }
  AcDbObjectId layer() const { return m_layer; }
  AcDbObjectId lineType() const { return m_linetype; }
  AcDb::LineWeight lineWeight() const { return m_lineWeight; }

 private:
  int m_color = AcCmColor::kByLayer;
  AcDbObjectId m_layer;
  AcDbObjectId m_linetype;
  AcDb::LineWeight m_lineWeight = AcDb::kLnWtByLayer;
};
