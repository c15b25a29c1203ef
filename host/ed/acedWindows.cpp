#include "host/ed/acedWindows.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"

CWnd* acedGetAcadDwgView() {
  auto* frontEnd = EdSession::instance().frontEnd();
  return frontEnd ? frontEnd->drawingView() : nullptr;
}

CWnd* acedGetAcadFrame() {
  auto* frontEnd = EdSession::instance().frontEnd();
  return frontEnd ? frontEnd->mainWindow() : nullptr;
}

void acedUpdateDisplay() {
  if (auto* frontEnd = EdSession::instance().frontEnd()) frontEnd->updateDisplay();
}

bool acedSetEntityHidden(const AcDbObjectId& id, bool hidden) {
  const auto* entity = AcDbEntity::cast(id.object());
  auto* document = entity ? acDocManagerPtr()->document(entity->database()) : nullptr;
  if (!document) return false;
  auto& all = document->edit().hidden;
  const bool changed = hidden ? all.insert(id).second : all.erase(id) > 0;
  auto* frontEnd = EdSession::instance().frontEnd();
  if (changed && frontEnd) frontEnd->regenerate(*document);
  return true;
}
