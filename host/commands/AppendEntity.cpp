#include "host/commands/AppendEntity.h"

#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/CurrentProperties.h"
#include "host/ed/EdSession.h"

namespace commands {

AcDbObjectId AppendEntity(std::unique_ptr<AcDbEntity> entity) {
  ed::ApplyCurrentProperties(*entity, *curDoc()->database());
  if (const auto status = ArxDbgUtils::addToCurrentSpace(entity.get()); status != Acad::eOk) {
    EdSession::instance().refuse(CString(L"实体不能加入图形：") + acadErrorStatusText(status));
    return {};
  }
  auto* added = entity.release();
  const auto id = added->objectId();
  added->close();
  return id;
}

} // namespace commands
