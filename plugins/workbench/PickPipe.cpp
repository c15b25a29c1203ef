#include "plugins/workbench/PickPipe.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "plugin/graph/EntityLayer.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugins/workbench/Asking.h"

namespace workbench {

std::optional<PipeKind> PipeKindOf(const AcDbObjectId& id) {
  double elevation = 0;
  if (CZPRiserPipe(id).GetStartElevation(elevation)) return PipeKind::riser;
  CString material;
  if (CZPMainPipe(id).GetMaterial(material)) return PipeKind::main;
  return std::nullopt;
}

std::optional<CString> ObstacleToChange(const AcDbObjectId& id) {
  const AcDbObjectPointer<AcDbEntity> opened(id, AcDb::kForWrite);
  if (opened) return std::nullopt;
  CString layer;
  if (opened.openStatus() == Acad::eOnLockedLayer && ZP::GetEntityLayer(id, layer))
    return L"管线在锁定的图层“" + layer + L"”上，不能修改。";
  return CString(L"管线不能修改：") + acadErrorStatusText(opened.openStatus());
}

std::optional<PickedPipe> PickPipe(const CString& prompt, PickFor purpose) {
  while (true) {
    const auto answer = ed::AskEntity({prompt, {}, 0, {}});
    if (!answer.hasValue()) return std::nullopt;
    const auto kind = PipeKindOf(answer.entity);
    if (!kind) {
      Refuse(L"这个实体没有管线数据。", L"用 WB_HZGG 绘制的干管，或用 WB_BZLG 布置的立管");
      continue;
    }
    const auto obstacle = purpose == PickFor::changing ? ObstacleToChange(answer.entity) : std::nullopt;
    if (!obstacle) return PickedPipe{answer.entity, *kind};
    Refuse(*obstacle, L"先解锁图层（KOR_JSQBTC），或另选一条管线");
  }
}

} // namespace workbench
