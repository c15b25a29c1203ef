// A file of a later program is readable but not understood. Replacing it would lose what that program kept.
#include "plugin/base/VersionMark.h"

#include <algorithm>

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"

bool ZP::CheckVersionMark(const CString& path, const CString& mark,
                          std::initializer_list<const wchar_t*> known) {
  if (std::any_of(known.begin(), known.end(), [&](const wchar_t* text) { return mark == text; })) return true;
  afx::LogError(L"参数文件 " + path + L"：版本标记“" + mark + L"”不能识别。未读入，下次保存前先另存一份");
  CIDPEx::MarkForeign(path);
  return false;
}
