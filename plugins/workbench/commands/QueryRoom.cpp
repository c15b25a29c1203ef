// WB_CXFJ: the loads of a room that the user picks, in the three ways in which they are asked for.
#include "host/ed/acutPrintf.h"
#include "plugin/rooms/RoomLoads.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {
namespace {

struct Query {
  const wchar_t* keyword;
  const wchar_t* first;
  const wchar_t* second;
  const wchar_t* secondUnit;
  int (*ask)(double& first, double& second);
};
constexpr Query kQueries[] = {
    {L"Heating", L"总热负荷", L"冬季最大总负荷", L"W", ZP::GetSelHvacSpaceHMLoad},
    {L"Cooling", L"总冷负荷", L"夏季最大总负荷", L"W", ZP::GetSelHvacSpaceCMLoad},
    {L"Temperature", L"总热负荷", L"冬季室内温度", L"℃", ZP::GetSelHvacSpaceWinData},
};

} // namespace

void QueryRoom() {
  const auto wanted =
      ed::AskKeyword({L"查询 [采暖(H)/制冷(C)/室内温度(T)] <采暖>:", L"Heating Cooling Temperature", 0, {}});
  if (wanted.isCancelled()) return;
  for (const Query& query : kQueries) {
    if (wanted.isNone() ? &query != kQueries : !wanted.isKeyword(query.keyword)) continue;
    double first = 0;
    double second = 0;
    if (query.ask(first, second))
      acutPrintf(L"\n%s %s W，%s %s %s。\n", query.first, NumberText(first), query.second, NumberText(second),
                 query.secondUnit);
  }
}

} // namespace workbench
