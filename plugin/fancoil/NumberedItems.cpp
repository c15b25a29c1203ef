#include "plugin/fancoil/NumberedItems.h"

#include <algorithm>
#include <numeric>

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CatalogueFile.h"

namespace fancoil {

namespace {

// Where the count exceeds all sub-keys, going through the numbers could take for ever: go through the keys.
std::vector<int> NumbersOfKeys(CIDPEx& list, const wchar_t* prefix, int count) {
  const int prefixLength = CString(prefix).GetLength();
  std::vector<int> numbers;
  for (const CString key : list.SubKeyNames) {
    const int number = _wtoi(key.Mid(prefixLength));
    if (number >= 0 && number < count && key == NumberedKey(prefix, number)) numbers.push_back(number);
  }
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

std::vector<int> Numbers(CIDPEx& list, const wchar_t* prefix) {
  const int count = ItemCount(list);
  if (count > list.SubKeyNames.GetSize()) return NumbersOfKeys(list, prefix, count);
  std::vector<int> numbers(static_cast<std::size_t>(std::max(count, 0)));
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

} // namespace

CString NumberedKey(const wchar_t* prefix, int number) {
  return prefix + ZP::itoa(number);
}

int ItemCount(CIDPEx& list) {
  int count = 0;
  list.GetSubValue(kCountKey, count);
  return count;
}

std::vector<NumberedItem> NumberedItems(CIDPEx& list, const wchar_t* prefix) {
  std::vector<NumberedItem> items;
  for (const int number : Numbers(list, prefix)) {
    CString key = NumberedKey(prefix, number);
    if (CIDPEx* node = list.GetSubItem(key)) items.push_back({std::move(key), node});
  }
  return items;
}

NumberedItem FindNumberedItem(CIDPEx& list, const wchar_t* prefix, const wchar_t* key, const CString& value) {
  for (NumberedItem& item : NumberedItems(list, prefix)) {
    CString text;
    if (item.node->GetSubValue(key, text) && text == value) return std::move(item);
  }
  return {};
}

CIDPEx& MakeNumberedItem(CIDPEx& list, const wchar_t* prefix, int number) {
  const CString key = NumberedKey(prefix, number);
  list.SetSubValue(key, 0);
  return *list.GetSubItem(key);
}

} // namespace fancoil
