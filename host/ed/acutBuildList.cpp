#include "host/ed/acutBuildList.h"

#include "host/db/DxfTag.h"

namespace {

ResbufPtr makeItem(int type, const ResbufArgument& value) {
  const bool isGroup = type >= 0 && type < RTNONE;
  const auto kind = isGroup ? dxf::valueKind(type) : dxf::ValueKind::integer;
  ResbufBuilder one;
  if (type == -4 || type == RTSTR || kind == dxf::ValueKind::text || kind == dxf::ValueKind::handle)
    return one.text(type, CString(value.text)).take();
  const bool isPoint = type == RTPOINT || type == RT3DPOINT || (type >= 10 && type < 19) || type == 210 ||
                       (type >= 1010 && type < 1020);
  if (isPoint) return one.point(type, value.point[0], value.point[1], value.point[2]).take();
  if (type == RTREAL || kind == dxf::ValueKind::real) return one.real(type, value.real).take();
  return one.integer(type, value.integer).take();
}

} // namespace

resbuf* acutBuildChain(const std::vector<ResbufArgument>& arguments) {
  resbuf* head = nullptr;
  resbuf** tail = &head;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const int type = static_cast<int>(arguments[i].integer);
    if (type == RTNONE || type == 0) break;
    if (type == -3) {
      *tail = acutNewRb(type);
    } else if (i + 1 < arguments.size()) {
      *tail = makeItem(type == RTDXF0 ? 0 : type, arguments[++i]).release();
    } else {
      break; // a type that lacks its value
    }
    tail = &(*tail)->rbnext;
  }
  return head;
}
