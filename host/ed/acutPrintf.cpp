#include "host/ed/acutPrintf.h"

#include "host/db/resbuf.h"
#include "host/ed/EdSession.h"

int acutPrintText(const CString& text) {
  EdSession::instance().print(text);
  return RTNORM;
}
