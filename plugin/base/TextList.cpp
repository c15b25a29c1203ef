#include "plugin/base/TextList.h"

#include <algorithm>

bool ZP::IsInTextArr(const CString& text, const CStringArray& array) {
  return std::find(array.begin(), array.end(), text) != array.end();
}
