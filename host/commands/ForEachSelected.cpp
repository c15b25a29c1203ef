#include "host/commands/ForEachSelected.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/SelectionPrompt.h"
#include "host/ed/acutPrintf.h"

namespace commands {

std::vector<AcDbObjectId> AskEntities() {
  const auto answer = ed::AskSelection({}, SelectionFilter(nullptr));
  return answer.cancelled ? std::vector<AcDbObjectId>() : answer.set.ids();
}

int ForEachForWrite(const std::vector<AcDbObjectId>& ids, const std::function<bool(AcDbEntity&)>& work) {
  int done = 0;
  int locked = 0;
  int failed = 0;
  for (const auto& id : ids) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    if (!entity)
      ++(entity.openStatus() == Acad::eOnLockedLayer ? locked : failed);
    else
      ++(work(*entity.object()) ? done : failed);
  }
  if (locked > 0) acutPrintf(L"\n%d 个在锁定的图层上，未改动。\n", locked);
  if (failed > 0) acutPrintf(L"\n%d 个不能这样修改，未改动。\n", failed);
  return done;
}

} // namespace commands
