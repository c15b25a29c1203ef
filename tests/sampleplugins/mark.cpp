// A plug-in with an entity class of its own: a mark that draws a circle on its entity's layer, a red cross in
// it, and its text.
#include "host/db/AcDbEntity.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/EntityMath.h"
#include "host/ed/AcRxAppMessages.h"
#include "host/ed/AcRxDynamicLinker.h"

#include <numbers>

namespace {

class SampleMark : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(SampleMark);

 public:
  Adesk::Boolean subWorldDraw(AcGiWorldDraw* draw) override {
    draw->circularArc(m_centre, m_radius, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 0,
                      2 * std::numbers::pi);
    const AcGeVector3d x(m_radius, 0, 0);
    const AcGeVector3d y(0, m_radius, 0);
    const AcGePoint3d across[] = {m_centre - x, m_centre + x};
    const AcGePoint3d up[] = {m_centre - y, m_centre + y};
    draw->subEntityTraits().setColor(1);
    draw->polyline(across);
    draw->polyline(up);
    draw->subEntityTraits().setColor(colorIndex());
    draw->text(m_centre + x, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, m_radius / 2, 1, m_text);
    return Adesk::kTrue;
  }
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override {
    if (!matrix.isUniScaledOrtho()) return Acad::eCannotScaleNonUniformly;
    if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
    m_centre = matrix * m_centre;
    m_radius *= matrix.scale();
    return Acad::eOk;
  }

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override {
    AcDbEntity::dxfInFields(tags, context);
    for (const DxfTag& tag : entity::FieldScope(tags)) {
      if (tag.code == 10) m_centre.x = context.real(tag);
      if (tag.code == 20) m_centre.y = context.real(tag);
      if (tag.code == 40) m_radius = context.real(tag);
      if (tag.code == 1) m_text = dxf::decodeText(tag.value);
    }
  }
  void dxfOutFields(DxfRecordEditor& editor) const override {
    AcDbEntity::dxfOutFields(editor);
    editor.subclass("SampleMark");
    editor.point(10, m_centre);
    editor.real(40, m_radius);
    editor.text(1, m_text);
  }

 private:
  AcGePoint3d m_centre;
  double m_radius = 1;
  CString m_text;
};

ACRX_DXF_CUSTOM_DEFINE_MEMBERS(SampleMark, AcDbEntity, "SAMPLEMARK", "标记插件", 0)

} // namespace

extern "C" int acrxGetApiVersion() {
  return ACRX_API_VERSION;
}

extern "C" int acrxEntryPoint(int message, void* packet) {
  if (message == AcRx::kInitAppMsg) acrxDynamicLinker->unlockApplication(packet);
  return AcRx::kRetOK;
}
