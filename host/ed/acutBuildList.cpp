#include "host/ed/acutBuildList.h"

#include "host/db/DxfTag.h"

namespace ed {

bool IsBareResbufType(int type) {
  return type == -3 || type == RTNONE;
}

} // namespace ed

resbuf* acutBuildChain(const std::vector<ResbufItem>& items) {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  for (const auto& item : items) {
    const int type = item.type == RTDXF0 ? 0 : item.type;
    ResbufBuilder one;
    const bool isText =
        type == -4 || type == RTSTR ||
        (type >= 0 && type < RTNONE &&
         (dxf::valueKind(type) == dxf::ValueKind::text || dxf::valueKind(type) == dxf::ValueKind::handle));
    const bool isReal =
        type == RTREAL || (type >= 0 && type < RTNONE && dxf::valueKind(type) == dxf::ValueKind::real);
    if (!item.hasValue)
      *tail = acutNewRb(type);
    else if (isText)
      *tail = one.text(type, CString(item.text)).take().release();
    else if (isReal)
      *tail = one.real(type, item.real).take().release();
    else
      *tail = one.integer(type, item.integer).take().release();
    tail = &(*tail)->rbnext;
  }
  return head;
}
