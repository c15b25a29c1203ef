// Builds a chain of result buffers from pairs of a type and its value, ended by RTNONE or 0 as in
// acutBuildList(RTDXF0, L"INSERT", 8, L"0", RTNONE). The values' types are checked by the compiler; a value
// of the wrong kind for its type is converted like CString::Format does.
#pragma once

#include "host/afx/FormatArgument.h"
#include "host/db/resbuf.h"

#include <vector>

// One type, and its value where the type has one.
struct ResbufItem {
  int type = RTNONE;
  bool hasValue = false;
  std::wstring text;
  std::int64_t integer = 0;
  double real = 0;
};
// Released by the caller with acutRelRb; null for no items. A text type (RTDXF0 stands for 0) takes the text,
// a number type the number.
resbuf* acutBuildChain(const std::vector<ResbufItem>& items);

namespace ed {

// Types that stand alone, without a value behind them.
bool IsBareResbufType(int type);

inline void CollectResbufItems(std::vector<ResbufItem>&) {}
inline void CollectResbufItems(std::vector<ResbufItem>& items, int type) {
  if (IsBareResbufType(type) && type != RTNONE && type != 0) items.push_back({type, false, {}, 0, 0});
}
template <class Value, class... Rest>
void CollectResbufItems(std::vector<ResbufItem>& items, int type, const Value& value, const Rest&... rest) {
  if (type == RTNONE) return;
  if constexpr (std::is_convertible_v<Value, int>) {
    if (IsBareResbufType(type)) {
      items.push_back({type, false, {}, 0, 0});
      CollectResbufItems(items, value, rest...);
      return;
    }
  }
  const afx::FormatArgument argument(value);
  items.push_back({type, true, argument.AsText(), argument.AsSigned(), argument.AsDouble()});
  CollectResbufItems(items, rest...);
}

} // namespace ed

template <class... Arguments> resbuf* acutBuildList(int type, const Arguments&... rest) {
  std::vector<ResbufItem> items;
  ed::CollectResbufItems(items, type, rest...);
  return acutBuildChain(items);
}
