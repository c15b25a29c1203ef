#include "plugin/tools/XrefClones.h"

#include <memory>
#include <vector>

#include "host/afx/CStringArray.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/ExternalReferences.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcApDocManagerReactor.h"
#include "host/ed/ArxDbgRbList.h"
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/acutPrintf.h"
#include "plugin/graph/Screen.h"
#include "plugin/graph/TableRecords.h"
#include "plugin/layers/LayerService.h"

namespace ZP {

namespace {

// What the last CloneXrefBlock did.
std::vector<AcDbObjectId> g_cloneEntityIds; // it added these to the drawing
std::vector<AcDbObjectId> g_cloneXrefIds;   // it hid these references

// Ids live no longer than their drawing, so what was done in one is forgotten with it.
class Forgetting : public AcApDocManagerReactor {
 public:
  Forgetting() { acDocManagerPtr()->addReactor(this); }
  ~Forgetting() override { acDocManagerPtr()->removeReactor(this); }
  void documentToBeDestroyed(AcApDocument* document) override {
    if (document && document->database() == m_drawing) Begin(nullptr);
  }
  void Begin(const AcDbDatabase* drawing) {
    m_drawing = drawing;
    g_cloneEntityIds = {};
    g_cloneXrefIds = {};
  }

 private:
  const AcDbDatabase* m_drawing = nullptr;
};

void Begin(const AcDbDatabase* drawing) {
  static Forgetting forgetting;
  forgetting.Begin(drawing);
}

// An external reference as far as its copies follow it.
struct Reference {
  AcGePoint3d position;
  AcGeVector3d scales;
  CString block;
  CString path;
};

// False for a reference that can't be opened and for an ordinary block.
bool ReadReference(const AcDbObjectId& id, Reference& out) {
  AcDbObjectPointer<AcDbBlockReference> reference(id, AcDb::kForRead);
  if (!reference) return false;
  AcDbObjectPointer<AcDbBlockTableRecord> record(reference->blockTableRecord(), AcDb::kForRead);
  if (!record || record->xrefStatus() == AcDb::kXrfNotAnXref) return false;
  out = {reference->position(), reference->scaleFactors(), record->name(), record->pathName()};
  return true;
}

// Brings what the block holds into the current space, in the reference's scales.
void AddContents(const AcDbObjectId& block, const AcGeVector3d& scales) {
  AcDbBlockReference copy;
  copy.setBlockTableRecord(block);
  copy.setScaleFactors(scales);
  std::vector<AcDbEntity*> parts;
  copy.explode(parts);
  for (auto* part : parts) {
    if (ArxDbgUtils::addToCurrentSpace(part) != Acad::eOk) {
      delete part;
      continue;
    }
    g_cloneEntityIds.push_back(part->objectId());
    part->close();
  }
}

void CloneReference(const AcDbObjectId& id, AcDbDatabase& working) {
  Reference reference;
  if (!ReadReference(id, reference)) return;
  AcDbDatabase file(false);
  constexpr int kDenyWrite = 32;
  const CString path = ExternalReferences::findFile(reference.path, working.fileName());
  if (file.readDwgFile(path, kDenyWrite) != Acad::eOk) {
    acutPrintf(L"\n打开外部参照块:%s失败!", reference.block);
    return;
  }
  AcDbObjectPointer<AcDbBlockTableRecord> space(file.modelSpaceId(), AcDb::kForRead);
  if (!space) return;
  const auto ids = EntitiesOf(*space.object());
  space.close();
  AcDbDatabase moved(true);
  // A base point at the negated position shifts the geometry by the position.
  const AcGePoint3d base = AcGePoint3d() - reference.position.asVector();
  if (file.wblock(&moved, ids, base, AcDb::kDrcIgnore) != Acad::eOk) return;
  AcDbObjectId block;
  if (working.insert(block, L"*U", &moved, true) != Acad::eOk) return;
  AddContents(block, reference.scales);
  AcDbObjectPointer<AcDbBlockTableRecord> record(block, AcDb::kForWrite);
  if (record) record->erase();
  g_cloneXrefIds.push_back(id);
  EntityRedraw(id, kHideEntity);
}

// Layers that are unlocked and thawed for the length of a scope.
class OpenLayers {
 public:
  explicit OpenLayers(const AcDbDatabase& drawing) : m_drawing(drawing) {
    CStringArray names;
    GetCurDwgAllLayer(names);
    for (int i = 0; i < names.GetSize(); ++i) {
      ForLayer(names[i], [&](AcDbLayerTableRecord& layer) {
        if (layer.isLocked() && layer.setIsLocked(false) == Acad::eOk) m_locked.push_back(names[i]);
        if (layer.isFrozen() && layer.setIsFrozen(false) == Acad::eOk) m_frozen.push_back(names[i]);
      });
    }
  }
  ~OpenLayers() {
    for (const auto& name : m_locked) ForLayer(name, [](auto& layer) { layer.setIsLocked(true); });
    for (const auto& name : m_frozen) ForLayer(name, [](auto& layer) { layer.setIsFrozen(true); });
  }
  OpenLayers(const OpenLayers&) = delete;
  OpenLayers& operator=(const OpenLayers&) = delete;

 private:
  template <class Work> void ForLayer(const CString& name, Work work) const {
    AcDbObjectId id;
    if (const auto* layers = AcDbLayerTable::cast(m_drawing.layerTableId().object())) layers->getAt(name, id);
    AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
    if (layer) work(*layer.object());
  }
  const AcDbDatabase& m_drawing;
  std::vector<CString> m_locked;
  std::vector<CString> m_frozen;
};

} // namespace

bool CloneXrefBlock() {
  auto* working = acdbHostApplicationServices()->workingDatabase();
  Begin(working);
  const ArxDbgRbList filter(acutBuildList(RTDXF0, L"INSERT", RTNONE));
  ArxDbgSelSet references;
  if (!working || references.allSelect(filter) != ArxDbgSelSet::kSelected) return false;
  for (const auto& id : references.ids()) CloneReference(id, *working);
  return true;
}

bool DeleteCloneXrefBlock() {
  bool all = true;
  if (const auto* working = acdbHostApplicationServices()->workingDatabase()) {
    const OpenLayers layers(*working);
    for (const auto& id : g_cloneEntityIds) {
      AcDbObjectPointer<AcDbEntity> copy(id, AcDb::kForWrite);
      if (!copy || copy->erase() != Acad::eOk) all = false;
    }
    for (const auto& id : g_cloneXrefIds) EntityRedraw(id, kShowEntity);
  }
  FlushGraphics();
  return all;
}

} // namespace ZP
