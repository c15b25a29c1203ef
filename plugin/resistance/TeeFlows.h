// The 15 flows through tees and crosses: each key of the file with the form that it belongs to, the text that
// shows the flow, and its fields. Reading, writing, summing and testing walk this list.
#pragma once

#include "plugin/resistance/CZPPipe3T4TCoe.h"
#include "plugin/resistance/CZPPipe3T4TCoeNum.h"

namespace resistance {

struct TeeFlow {
  const wchar_t* key;
  const wchar_t*
      form; // 汇 merges, 分 divides, 斜 has an oblique branch, 4通 is a cross; the number is the port
  const wchar_t* flow; // that all of the water passes
  double CZPPipe3T4TCoe::*coefficient;
  int CZPPipe3T4TCoeNum::*count;
};

// In the order of the fields. Each key is looked up by itself, so the order in a file is free.
#define ZP_TEE_FLOW(key, form, flow, field)                                                                  \
  { key, form, flow, &CZPPipe3T4TCoe::field, &CZPPipe3T4TCoeNum::field }

inline constexpr TeeFlow kTeeFlows[] = {
    ZP_TEE_FLOW(L"3汇1-3", L"3汇", L"1→3", merge3From1),
    ZP_TEE_FLOW(L"3汇2-3", L"3汇", L"2→3", merge3From2),
    ZP_TEE_FLOW(L"1分1-2", L"1分", L"1→2", split1To2),
    ZP_TEE_FLOW(L"1分1-3", L"1分", L"1→3", split1To3),
    ZP_TEE_FLOW(L"2汇1-2", L"2汇", L"1→2", merge2From1),
    ZP_TEE_FLOW(L"2汇3-2", L"2汇", L"3→2", merge2From3),
    ZP_TEE_FLOW(L"2分2-1", L"2分", L"2→1", split2To1),
    ZP_TEE_FLOW(L"2分2-3", L"2分", L"2→3", split2To3),
    ZP_TEE_FLOW(L"斜3分3-2", L"斜3分", L"3→2", obliqueSplit3To2),
    ZP_TEE_FLOW(L"斜1汇2-1", L"斜1汇", L"2→1", obliqueMerge1From2),
    ZP_TEE_FLOW(L"斜1汇3-1", L"斜1汇", L"3→1", obliqueMerge1From3),
    ZP_TEE_FLOW(L"斜3汇2-3", L"斜3汇", L"2→3", obliqueMerge3From2),
    ZP_TEE_FLOW(L"4通1-2", L"4通", L"1→2", cross1To2),
    ZP_TEE_FLOW(L"4通1-4", L"4通", L"1→4", cross1To4),
    ZP_TEE_FLOW(L"4通1-3", L"4通", L"1→3", cross1To3),
};

#undef ZP_TEE_FLOW

} // namespace resistance
