// Builds a chain of result buffers from pairs of a type and its value, as in
// acutBuildList(RTDXF0, L"INSERT", 8, L"0", RTNONE). RTDXF0 stands for type 0; -3 has no value. The values'
// types are known, so nothing is read as what it isn't; a value of another kind than its type's is converted
// as CString::Format does.
#pragma once

#include "host/afx/FormatArgument.h"
#include "host/db/resbuf.h"

#include <array>
#include <vector>

// One argument: a type, or a value.
struct ResbufArgument {
  std::wstring text;
  std::int64_t integer = 0;
  double real = 0;
  std::array<double, 3> point = {};
};

// Released by the caller with acutRelRb; null for no items. Ends at RTNONE, at 0 as a type, and with the
// arguments.
resbuf* acutBuildChain(const std::vector<ResbufArgument>& arguments);

template <class Value> ResbufArgument MakeResbufArgument(const Value& value) {
  if constexpr (std::is_convertible_v<const Value&, const ads_real*>) {
    const ads_real* p = value;
    return {{}, 0, p[0], {p[0], p[1], p[2]}};
  } else {
    const afx::FormatArgument argument(value);
    return {argument.AsText(), argument.AsSigned(), argument.AsDouble(), {argument.AsDouble(), 0, 0}};
  }
}

template <class... Values> resbuf* acutBuildList(int type, const Values&... rest) {
  return acutBuildChain({MakeResbufArgument(type), MakeResbufArgument(rest)...});
}
