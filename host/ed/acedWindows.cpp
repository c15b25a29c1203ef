#include "host/ed/acedWindows.h"

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
