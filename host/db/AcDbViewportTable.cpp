#include "host/db/AcDbViewportTable.h"

#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"

#include <cmath>

ACRX_DXF_DEFINE_MEMBERS(AcDbViewportTableRecord, AcDbSymbolTableRecord, "VPORT")
ACRX_DXF_DEFINE_MEMBERS(AcDbViewportTable, AcDbSymbolTable, "")

namespace {

bool isLength(double value) {
  return value > 0 && std::isfinite(value);
}

} // namespace

Acad::ErrorStatus AcDbViewportTableRecord::setCenterPoint(const AcGePoint2d& centre) {
  return assign(m_centre, centre, std::isfinite(centre.x) && std::isfinite(centre.y));
}

Acad::ErrorStatus AcDbViewportTableRecord::setHeight(double height) {
  return assign(m_height, height, isLength(height));
}

void AcDbViewportTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  AcDbSymbolTableRecord::dxfInFields(tags, context);
  m_centre = {};
  m_height = m_aspect = 1;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    switch (tag.code) {
    case 12:
      m_centre.x = context.real(tag);
      break;
    case 22:
      m_centre.y = context.real(tag);
      break;
    case 40:
      if (const double height = context.real(tag, 1.0); isLength(height)) m_height = height;
      break;
    case 41:
      if (const double aspect = context.real(tag, 1.0); isLength(aspect)) m_aspect = aspect;
      break;
    default:
      break;
    }
  }
}

void AcDbViewportTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutEntry(editor, "VPORT", "AcDbViewportTableRecord");
  editor.point2d(12, m_centre.x, m_centre.y);
  // A record may hold what is no length, and keeps it as long as nothing sets another.
  if (const auto height = editor.realAt(40); !height || isLength(*height) || m_height != 1)
    editor.real(40, m_height);
}
