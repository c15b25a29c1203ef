// Making one bend: the pipes are cut, and the symbol is put in their place.
#include <memory>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCircle.h"
#include "host/db/AcDbLayerTable.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Xdata.h"
#include "plugin/layers/LayerService.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugin/tools/ZPKwCl.h"
#include "plugin/tools/crossings/PipeCuts.h"
#include "plugin/tools/crossings/SymbolKeys.h"
#include "plugin/tools/crossings/SymbolParts.h"

namespace {

constexpr int kRadiusDigits = 2;

// A layer without an identifier stands for itself.
CString SymbolLayer(const AcDbObjectId& pipeLayer) {
  AcDbObjectPointer<AcDbLayerTableRecord> record(pipeLayer, AcDb::kForRead);
  if (!record) return {};
  CString identifier = record->name();
  record.close();
  ZP::GetKOrLayer(identifier, identifier);
  return ZP::GetUserLayer(identifier + crossings::kLayerSuffix);
}

// Null when the block table is taken or refuses it. Open for write, the drawing's.
AcDbBlockTableRecord* AddBlock(const AcGePoint3d& origin) {
  const auto* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return nullptr;
  const AcDbObjectPointer<AcDbBlockTable> blocks(drawing->blockTableId(), AcDb::kForWrite);
  auto record = std::make_unique<AcDbBlockTableRecord>();
  if (!blocks || record->setName(L"*U") != Acad::eOk || record->setOrigin(origin) != Acad::eOk)
    return nullptr;
  return blocks->add(record.get()) == Acad::eOk ? record.release() : nullptr;
}

// Null when the current space can't take it.
AcDbObjectId AddReference(const AcDbObjectId& block, const AcGePoint3d& point, const AcDbObjectId& layer,
                          double radius) {
  auto reference = std::make_unique<AcDbBlockReference>(point, block);
  reference->setDatabaseDefaults();
  reference->setColorIndex(AcCmColor::kByLayer);
  if (layer) reference->setLayer(layer);
  ZP::SetXdata(reference.get(), crossings::kRadiusKey, ZP::ftoa(radius, kRadiusDigits, true));
  ZP::SetXdata(reference.get(), crossings::kMarkKey, L"");
  if (ArxDbgUtils::addToCurrentSpace(reference.get()) != Acad::eOk) return {};
  const AcDbObjectId id = reference->objectId();
  reference.release()->close();
  return id;
}

// A symbol is a riser between the lowest and the highest of its pipes, and of the higher ones' make.
void MakeRiser(const AcDbObjectId& id, const AcDbObjectIdArray& upper, double from, double to) {
  CZPRiserPipe riser(id);
  riser.InitEntityXdata();
  if (!upper.isEmpty()) {
    const CZPMainPipe main(upper.first());
    CString material;
    double dn = 0;
    if (main.GetMaterial(material)) riser.SetMaterial(material);
    if (main.GetDN(dn)) riser.SetDN(dn);
  }
  riser.SetStartElevation(from);
  riser.SetEndElevation(to);
}

// Where the drawing has no such layer, the symbol stands on the current one.
void PutOnLayer(const AcDbObjectId& id, const CString& layer) {
  const AcDbObjectPointer<AcDbEntity> symbol(id, AcDb::kForWrite);
  if (symbol && symbol->setLayer(layer) != Acad::eOk) symbol->setLayer(symbol->database()->clayer());
}

} // namespace

void ZPKwCl::CreateKwEnt(AcDbObjectIdArray upper, AcDbObjectIdArray lower, const AcGePoint3d& point,
                         double minElevation, double maxElevation) {
  auto circle = std::make_unique<AcDbCircle>(point, AcGeVector3d::kZAxis, m_dRadius);
  AcDbObjectId layer; // of the pipe worked on last
  for (const auto& id : lower) {
    const AcDbObjectPointer<AcDbCurve> pipe(id, AcDb::kForWrite);
    if (!pipe) continue;
    if (const auto rest = crossings::CutLower(*pipe.object(), *circle)) m_ids.append(rest);
    layer = pipe->layerId();
  }
  AcDbBlockTableRecord* record = AddBlock(point);
  if (!record) return; // the lower pipes stay cut
  m_bCreated = true;
  for (int i = 0; i < upper.length(); ++i) { // grows on the way
    const AcDbObjectPointer<AcDbCurve> pipe(upper[i], AcDb::kForWrite);
    if (!pipe) continue;
    if (const auto rest = crossings::CutUpper(*pipe.object(), *circle)) {
      m_ids.append(rest);
      upper.append(rest);
    }
    layer = pipe->layerId();
  }
  if (!m_bArcOuch || !CreateArcOuch(upper, circle.get(), record))
    crossings::AddPart(*record, circle.release());
  const AcDbObjectId block = record->objectId();
  record->close();
  // It gets its data on the pipes' layer, which is not locked, and its own layer last.
  const AcDbObjectId symbol = AddReference(block, point, layer, m_dRadius);
  MakeRiser(symbol, upper, minElevation, maxElevation);
  PutOnLayer(symbol, SymbolLayer(layer));
}
