#include "host/db/AcDbEntity.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/db/ExtentsDraw.h"

#include <algorithm>
#include <cmath>
#include <utility>

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

// Applies a setter to the entity and, where wanted, to what belongs to it. The entity's own status counts.
template <typename Setter> Acad::ErrorStatus AcDbEntity::withSubEntities(bool doSubents, Setter set) {
  const auto status = set(*this);
  if (status != Acad::eOk || !doSubents) return status;
  for (const AcDbObjectId& id : subEntities()) {
    AcDbObjectPointer<AcDbEntity> sub(id, AcDb::kForWrite);
    if (sub) set(*sub.object());
  }
  for (const auto& sub : newSubEntities()) set(*sub);
  return status;
}

Acad::ErrorStatus AcDbEntity::setLayer(const wchar_t* name, bool doSubents) {
  const AcDbDatabase* db = databaseFor(*this);
  if (!db) return Acad::eNoDatabase;
  AcDbObjectId id;
  if (const auto status = db->tableOf("LAYER")->getAt(name, id); status != Acad::eOk) return status;
  return setLayer(id, doSubents);
}

Acad::ErrorStatus AcDbEntity::setLayer(const AcDbObjectId& id, bool doSubents) {
  if (id.isNull()) return Acad::eNullObjectId;
  if (!AcDbLayerTableRecord::cast(id.object())) return Acad::eNotThatKindOfClass;
  if (database() && id.database() != database()) return Acad::eWrongDatabase;
  return withSubEntities(doSubents, [&](AcDbEntity& e) { return e.assign(e.m_layer, id); });
}

Acad::ErrorStatus AcDbEntity::setColorIndex(int index, bool doSubents) {
  AcCmColor color;
  if (const auto status = color.setColorIndex(index); status != Acad::eOk) return status;
  return withSubEntities(doSubents, [&](AcDbEntity& e) {
    const bool isAnother = e.m_colorIndex != index;
    const auto status = e.assign(e.m_colorIndex, static_cast<short>(index));
    if (status == Acad::eOk && isAnother) e.m_trueColor = -1;
    return status;
  });
}

CString AcDbEntity::linetype() const {
  return recordName(m_linetype, L"ByLayer");
}

Acad::ErrorStatus AcDbEntity::setLinetype(const wchar_t* name, bool doSubents) {
  const AcDbDatabase* db = databaseFor(*this);
  if (!db) return Acad::eNoDatabase;
  AcDbObjectId id;
  if (const auto status = db->tableOf("LTYPE")->getAt(name, id); status != Acad::eOk) return status;
  return setLinetype(id, doSubents);
}

Acad::ErrorStatus AcDbEntity::setLinetype(const AcDbObjectId& id, bool doSubents) {
  if (id.isNull()) return Acad::eNullObjectId;
  if (!AcDbLinetypeTableRecord::cast(id.object())) return Acad::eNotThatKindOfClass;
  if (database() && id.database() != database()) return Acad::eWrongDatabase;
  return withSubEntities(doSubents, [&](AcDbEntity& e) { return e.assign(e.m_linetype, id); });
}

Acad::ErrorStatus AcDbEntity::setLinetypeScale(double scale, bool doSubents) {
  const bool valid = scale > 0 && std::isfinite(scale);
  return withSubEntities(doSubents, [&](AcDbEntity& e) { return e.assign(e.m_linetypeScale, scale, valid); });
}

Acad::ErrorStatus AcDbEntity::setLineWeight(AcDb::LineWeight weight, bool doSubents) {
  const bool valid = AcDb::isValidLineWeight(weight);
  return withSubEntities(
      doSubents, [&](AcDbEntity& e) { return e.assign(e.m_lineWeight, static_cast<short>(weight), valid); });
}

Acad::ErrorStatus AcDbEntity::setPropertiesFrom(const AcDbEntity* other) {
  if (!other) return Acad::eNullObjectPointer;
  if (database() && other->m_layer && other->m_layer.database() != database()) return Acad::eWrongDatabase;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_layer = other->m_layer;
  m_linetype = other->m_linetype;
  m_linetypeScale = other->m_linetypeScale;
  if (m_colorIndex != other->m_colorIndex) m_trueColor = -1;
  m_colorIndex = other->m_colorIndex;
  m_lineWeight = other->m_lineWeight;
  m_visible = other->m_visible;
  return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setDatabaseDefaults(const AcDbDatabase* db) {
  if (!db) db = databaseFor(*this);
  if (!db) return Acad::eNoDatabase;
  const AcDbHeader& header = db->header();
  auto first = setLayer(db->clayer());
  const auto also = [&](Acad::ErrorStatus status) {
    if (first == Acad::eOk) first = status;
  };
  if (const auto index = header.integer("$CECOLOR")) also(setColorIndex(static_cast<int>(*index)));
  if (const auto name = header.text("$CELTYPE")) {
    AcDbObjectId id;
    if (db->tableOf("LTYPE")->getAt(*name, id) == Acad::eOk) also(setLinetype(id));
  }
  if (const auto scale = header.real("$CELTSCALE")) also(setLinetypeScale(*scale));
  if (const auto weight = header.integer("$CELWEIGHT"))
    also(setLineWeight(static_cast<AcDb::LineWeight>(*weight)));
  return first;
}

Acad::ErrorStatus AcDbEntity::setVisibility(AcDb::Visibility visibility) {
  return assign(m_visible, visibility == AcDb::kVisible);
}

void AcDbEntity::worldDraw(AcGiWorldDraw& draw) const {
  const_cast<AcDbEntity*>(this)->subWorldDraw(&draw);
}

Adesk::Boolean AcDbEntity::subWorldDraw(AcGiWorldDraw*) {
  return Adesk::kTrue;
}

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

Acad::ErrorStatus AcDbEntity::getTransformedCopy(const AcGeMatrix3d& matrix, AcDbEntity*& copy) const {
  copy = nullptr;
  std::unique_ptr<AcDbEntity> made(AcDbEntity::cast(clone()));
  if (!made) return Acad::eNotApplicable;
  const auto status = made->transformBy(matrix);
  if (status == Acad::eOk) copy = made.release();
  return status;
}

Acad::ErrorStatus AcDbEntity::subIntersectWith(const AcDbEntity&, AcDb::Intersect,
                                               std::vector<AcGePoint3d>&) const {
  return Acad::eNotApplicable;
}

Acad::ErrorStatus AcDbEntity::explode(std::vector<AcDbEntity*>&) const {
  return Acad::eCannotExplodeEntity;
}

// The ids stay as they are: a name would be looked up in the drawing, and a layer that is not set would
// become the layer 0.
AcDbObject* AcDbEntity::cloneInto(std::unique_ptr<AcDbObject> made) const {
  AcDbObject* object = AcDbObject::cloneInto(std::move(made));
  if (auto* entity = AcDbEntity::cast(object)) {
    entity->m_layer = m_layer;
    entity->m_linetype = m_linetype;
    entity->m_paperSpace = false;
    const auto copySub = [&](const AcDbEntity* sub) {
      if (auto* copy = sub && !sub->isErased() ? AcDbEntity::cast(sub->clone()) : nullptr)
        entity->addNewSubEntity(std::unique_ptr<AcDbEntity>(copy));
    };
    for (const AcDbObjectId& id : subEntities()) copySub(AcDbEntity::cast(id.object()));
    for (const auto& sub : newSubEntities()) copySub(sub.get());
  }
  return object;
}

void AcDbEntity::takePlaceOf(AcDbObject& other) {
  AcDbObject::takePlaceOf(other);
  auto& entity = static_cast<AcDbEntity&>(other);
  m_rank = entity.m_rank;
  m_subEntities = std::move(entity.m_subEntities);
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
  return m_subEntities ? m_subEntities->ids : none;
}

void AcDbEntity::addSubEntity(const AcDbObjectId& id) {
  if (!m_subEntities) m_subEntities = std::make_unique<SubEntities>();
  // The end mark stays the last.
  auto& ids = m_subEntities->ids;
  const bool ended = !ids.empty() && AcDbSequenceEnd::cast(ids.back().object()) && !ids.back().isErased();
  ids.insert(ended ? ids.end() - 1 : ids.end(), id);
}

const std::vector<std::unique_ptr<AcDbEntity>>& AcDbEntity::newSubEntities() const {
  static const std::vector<std::unique_ptr<AcDbEntity>> none;
  return m_subEntities ? m_subEntities->fresh : none;
}

void AcDbEntity::addNewSubEntity(std::unique_ptr<AcDbEntity> entity) {
  if (!m_subEntities) m_subEntities = std::make_unique<SubEntities>();
  m_subEntities->fresh.push_back(std::move(entity));
}

std::vector<std::unique_ptr<AcDbEntity>> AcDbEntity::takeNewSubEntities() {
  return m_subEntities ? std::exchange(m_subEntities->fresh, {}) : std::vector<std::unique_ptr<AcDbEntity>>();
}

bool AcDbEntity::hasSubEntities() const {
  if (!newSubEntities().empty()) return true;
  const auto& ids = subEntities();
  return std::any_of(ids.begin(), ids.end(), [](const AcDbObjectId& id) { return !id.isErased(); });
}

void AcDbEntity::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  m_layer.setNull();
  m_linetype.setNull();
  m_linetypeScale = 1.0;
  m_colorIndex = AcCmColor::kByLayer;
  m_trueColor = -1;
  m_transparency = 0;
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
    case 420:
      m_trueColor = static_cast<std::int32_t>(dxf::toInteger(tag.value).value_or(0) & 0xFFFFFF);
      break;
    case 440:
      m_transparency = static_cast<std::int32_t>(dxf::toInteger(tag.value).value_or(0) & 0x7FFFFFFF);
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
  const bool isAnother = editor.integerAt(62).value_or(AcCmColor::kByLayer) != m_colorIndex;
  if (isAnother || (m_trueColor < 0 && editor.integerAt(420))) {
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
