#include "plugins/workbench/LayerPlacing.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/acutPrintf.h"
#include "plugin/layers/LayerService.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

AcDbObjectId FindLayer(const CString& name) {
  const auto* database = acdbHostApplicationServices()->workingDatabase();
  AcDbObjectId id;
  if (!database) return id;
  const AcDbObjectPointer<AcDbLayerTable> layers(database->layerTableId(), AcDb::kForRead);
  if (layers) layers->getAt(name, id);
  return id;
}

} // namespace

bool PrepareLayer(const CString& identifier) {
  const CString name = ZP::GetUserLayer(identifier);
  const AcDbObjectPointer<AcDbLayerTableRecord> layer(FindLayer(name), AcDb::kForRead);
  if (!layer) {
    Refuse(L"图层“" + name + L"”不能建立。", L"在图层方案中改用图形可以有的图层名");
    return false;
  }
  if (layer->isLocked()) {
    Refuse(L"图层“" + name + L"”已锁定。", L"先解锁（KOR_JSQBTC），或换一个图层标识");
    return false;
  }
  if (layer->isOff()) acutPrintf(L"\n注意：图层“%s”已关闭。\n", name);
  if (layer->isFrozen()) acutPrintf(L"\n注意：图层“%s”已冻结。\n", name);
  return true;
}

bool AskPlacingLayer(const CString& preset, const wchar_t* const* usual, CString& identifier) {
  while (true) {
    const auto answer = AskLayerIdentifier(preset, usual);
    if (!answer) return false;
    identifier = *answer;
    if (PrepareLayer(identifier)) return true;
  }
}

AcDbObjectId AppendOnLayer(std::unique_ptr<AcDbEntity> entity, const CString& identifier) {
  // On its layer from the start: the current one may be locked, and nothing on a locked layer can be changed.
  auto status = entity->setLayer(ZP::GetUserLayer(identifier));
  if (status == Acad::eOk) status = ArxDbgUtils::addToCurrentSpace(entity.get());
  if (status != Acad::eOk) {
    Refuse(CString(L"实体不能加入图形：") + acadErrorStatusText(status));
    return {};
  }
  auto* added = entity.release();
  const auto id = added->objectId();
  added->close();
  CZPMainPipe(id).SetLayerId(identifier);
  return id;
}

} // namespace workbench
