// AcDbBlockReference::explode.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/BlockCycle.h"
#include "host/db/FollowingEntity.h"

namespace {

bool isNamed(const AcDbObjectId& record, const wchar_t* name) {
  const auto* found = AcDbSymbolTableRecord::cast(record.object());
  return found && found->name().CompareNoCase(name) == 0;
}

// What stood on layer 0 or "by block" was drawn as the insertion says, and is to look the same by itself.
void inherit(AcDbEntity& part, const AcDbEntity& reference) {
  if (reference.layerId() && (part.layerId().isNull() || isNamed(part.layerId(), L"0")))
    part.setLayer(reference.layerId(), false);
  if (part.colorIndex() == AcCmColor::kByBlock) part.setColorIndex(reference.colorIndex());
  if (reference.linetypeId() && isNamed(part.linetypeId(), L"ByBlock"))
    part.setLinetype(reference.linetypeId());
  if (part.lineWeight() == AcDb::kLnWtByBlock) part.setLineWeight(reference.lineWeight());
}

} // namespace

Acad::ErrorStatus AcDbBlockReference::explode(std::vector<AcDbEntity*>& parts) const {
  const auto* block = AcDbBlockTableRecord::cast(m_block.object());
  if (!block || block->isErased()) return Acad::eNullObjectId;
  if (static_cast<long long>(m_rows) * m_columns > 10000) return Acad::eCannotExplodeEntity;
  std::vector<std::unique_ptr<AcDbEntity>> made;
  for (const AcGeMatrix3d& transform : copyTransforms()) {
    for (const AcDbObjectId& id : block->drawnEntities()) {
      const auto* inner = AcDbEntity::cast(id.object());
      if (!inner || inner->isErased()) continue;
      if (const auto* nested = AcDbBlockReference::cast(inner))
        if (blockContains(nested->blockTableRecord(), m_block)) return Acad::eCannotExplodeEntity;
      AcDbEntity* copy = nullptr;
      auto status = inner->getTransformedCopy(transform, copy);
      if (status == Acad::eNotApplicable || status == Acad::eCannotScaleNonUniformly) {
        // The same insertion, of a block with this one entity.
        const AcDbObjectId wrapper = entity::wrapInBlock(*m_block.database(), id, block->origin());
        if (wrapper.isNull()) return status;
        auto reference = std::make_unique<AcDbBlockReference>();
        reference->setPropertiesFrom(this);
        reference->m_block = wrapper;
        reference->m_normal = m_normal;
        reference->m_scale = m_scale;
        reference->m_rotation = m_rotation;
        const AcGeVector3d offset = transform.translation() - blockTransform().translation();
        reference->m_position = m_position + AcGeMatrix3d::worldToPlane(m_normal) * offset;
        made.push_back(std::move(reference));
        continue;
      }
      if (status != Acad::eOk) return status;
      made.emplace_back(copy);
      inherit(*copy, *this);
    }
  }
  for (auto& part : made) parts.push_back(part.release());
  return Acad::eOk;
}
