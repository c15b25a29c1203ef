#include "host/db/AcDbEntity.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/ExtentsDraw.h"

#include <cmath>

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbEntity, AcDbObject)

namespace {

// Names of an entity outside a drawing are looked up in the one that is worked on.
AcDbDatabase* databaseFor(const AcDbEntity& entity) {
  return entity.database() ? entity.database() : acdbHostApplicationServices()->workingDatabase();
}

CString recordName(const AcDbObjectId& id, const wchar_t* none) {
  const auto* record = AcDbSymbolTableRecord::cast(id.object());
  return record ? record->name() : CString(none);
}

} // namespace

CString AcDbEntity::layer() const {
  return recordName(m_layer, L"0");
}

Acad::ErrorStatus AcDbEntity::setLayer(const wchar_t* name) {
  const AcDbDatabase* db = databaseFor(*this);
  if (!db) return Acad::eNoDatabase;
  AcDbObjectId id;
  if (const auto status = db->tableOf("LAYER")->getAt(name, id); status != Acad::eOk) return status;
  return setLayer(id);
}

Acad::ErrorStatus AcDbEntity::setLayer(const AcDbObjectId& id) {
  if (id.isNull()) return Acad::eNullObjectId;
  if (!AcDbLayerTableRecord::cast(id.object())) return Acad::eNotThatKindOfClass;
  if (database() && id.database() != database()) return Acad::eWrongDatabase;
  return assign(m_layer, id);
}

Acad::ErrorStatus AcDbEntity::setColorIndex(int index) {
  AcCmColor color;
  if (const auto status = color.setColorIndex(index); status != Acad::eOk) return status;
  return assign(m_colorIndex, static_cast<short>(index));
}

CString AcDbEntity::linetype() const {
  return recordName(m_linetype, L"ByLayer");
}

Acad::ErrorStatus AcDbEntity::setLinetype(const wchar_t* name) {
  const AcDbDatabase* db = databaseFor(*this);
  if (!db) return Acad::eNoDatabase;
  AcDbObjectId id;
  if (const auto status = db->tableOf("LTYPE")->getAt(name, id); status != Acad::eOk) return status;
  return setLinetype(id);
}

Acad::ErrorStatus AcDbEntity::setLinetype(const AcDbObjectId& id) {
  if (id.isNull()) return Acad::eNullObjectId;
  if (!AcDbLinetypeTableRecord::cast(id.object())) return Acad::eNotThatKindOfClass;
  if (database() && id.database() != database()) return Acad::eWrongDatabase;
  return assign(m_linetype, id);
}

Acad::ErrorStatus AcDbEntity::setLinetypeScale(double scale) {
  return assign(m_linetypeScale, scale, scale > 0 && std::isfinite(scale));
}

Acad::ErrorStatus AcDbEntity::setLineWeight(AcDb::LineWeight weight) {
  return assign(m_lineWeight, static_cast<short>(weight), AcDb::isValidLineWeight(weight));
}

Acad::ErrorStatus AcDbEntity::setVisibility(AcDb::Visibility visibility) {
  return assign(m_visible, visibility == AcDb::kVisible);
}

void AcDbEntity::worldDraw(AcGiWorldDraw&) const {}

Acad::ErrorStatus AcDbEntity::getGeomExtents(AcDbExtents& extents) const {
  ExtentsDraw draw;
  worldDraw(draw);
  if (draw.extents().isEmpty()) return Acad::eInvalidExtents;
  extents = draw.extents();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::transformBy(const AcGeMatrix3d&) {
  return Acad::eNotApplicable;
}

CString AcDbEntity::dxfName() const {
  const char* own = isA()->dxfName();
  return CString::FromUtf8(*own ? std::string_view(own) : rawRecord().type());
}

Acad::ErrorStatus AcDbEntity::erase(bool erasing) {
  const auto status = AcDbObject::erase(erasing);
  if (status != Acad::eOk) return status;
  for (const AcDbObjectId& id : subEntities()) {
    AcDbObjectPointer<AcDbEntity> sub(id, AcDb::kForWrite, true);
    if (sub) sub->erase(erasing);
  }
  return Acad::eOk;
}

const std::vector<AcDbObjectId>& AcDbEntity::subEntities() const {
  static const std::vector<AcDbObjectId> none;
  return m_subEntities ? *m_subEntities : none;
}

void AcDbEntity::addSubEntity(const AcDbObjectId& id) {
  if (!m_subEntities) m_subEntities = std::make_unique<std::vector<AcDbObjectId>>();
  m_subEntities->push_back(id);
}

void AcDbEntity::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  m_layer.setNull();
  m_linetype.setNull();
  m_linetypeScale = 1.0;
  m_colorIndex = AcCmColor::kByLayer;
  m_lineWeight = AcDb::kLnWtByLayer;
  m_visible = true;
  m_paperSpace = false;
  int markers = 0;
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code >= 1000 || (tag.code == 100 && ++markers == 2)) break;
    if (tag.code == 102) inGroup = !tag.value.empty() && tag.value.front() == '{';
    if (inGroup) continue;
    switch (tag.code) {
    case 8:
      m_layer = context.layer(tag.value);
      break;
    case 6:
      m_linetype = context.linetype(tag.value);
      break;
    case 62:
      m_colorIndex = static_cast<short>(
          context.integerIn(tag, AcCmColor::kByBlock, AcCmColor::kByLayer, AcCmColor::kByLayer));
      break;
    case 48:
      m_linetypeScale = context.real(tag, 1.0);
      break;
    case 60:
      m_visible = context.integer(tag) == 0;
      break;
    case 67:
      m_paperSpace = context.integer(tag) == 1;
      break;
    case 370:
      m_lineWeight = static_cast<short>(
          context.integerIn(tag, AcDb::kLnWtByLwDefault, AcDb::kLnWt211, AcDb::kLnWtByLayer));
      break;
    default:
      break;
    }
  }
  if (m_layer.isNull()) m_layer = context.layer("0");
}

void AcDbEntity::dxfOutFields(DxfRecordEditor& editor) const {
  dxfOutHead(editor, dxfName().ToUtf8());
  editor.subclass("AcDbEntity");
  editor.integer(67, m_paperSpace ? 1 : 0, 0);
  editor.name(8, layer(), rawRecord().isEmpty() ? L"" : L"0");
  editor.name(6, linetype(), L"ByLayer");
  // A true colour beside the index is what other programs show, so it goes when the index changes.
  if (editor.integerAt(62).value_or(AcCmColor::kByLayer) != m_colorIndex) {
    editor.remove(420);
    editor.remove(430);
  }
  editor.integer(62, m_colorIndex, AcCmColor::kByLayer);
  if (!editor.subclassMarkers()) return; // older drawings know no more
  if (database() && database()->form().version >= "AC1015")
    editor.integer(370, m_lineWeight, AcDb::kLnWtByLayer);
  editor.real(48, m_linetypeScale, 1.0);
  editor.integer(60, m_visible ? 0 : 1, 0);
}
