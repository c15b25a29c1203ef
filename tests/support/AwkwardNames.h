// Names that a careless file format would trip over.
#pragma once

#include <string>
#include <vector>

#include "host/afx/CString.h"

inline std::vector<CString> AwkwardNames() {
  return {
      L"",
      L" ",
      L" 前后有空格 ",
      L"0",
      L"Version",
      L"最小值",
      L"a\\b/c:*?<>|",
      L"\"引号\" '单' “双”",
      L"{}[],:",
      L"%s%d%%",
      L"\\u0041",
      L"制表\t换行\r\n退格\b",
      CString(std::wstring(L"零\0后", 3)),
      CString(std::wstring{wchar_t(0x01), wchar_t(0x1F), wchar_t(0x7F)}),
      L"\U0001F600\U00020000",
      CString(std::wstring(1, wchar_t(0xD83D))), // half of a pair
      CString(std::wstring(1000, L'长')),
  };
}
