// A tree as one text that shows all of it, values with their kind, for comparing trees in tests.
#pragma once

#include <string>

#include "plugin/base/CIDPEx.h"

// The text form itself: what two trees write alike is alike, kinds of values and order of keys included.
inline std::string TreeText(const CIDPEx& tree) {
  std::string image;
  tree.WriteDataToBuffer(image);
  return image.size() > 12 ? image.substr(12) : std::string();
}

// An image with a right head around any text.
inline std::string ImageOf(const std::string& text) {
  std::string image = "IDP1";
  for (int i = 0; i < 8; ++i)
    image += static_cast<char>(static_cast<unsigned long long>(text.size()) >> (8 * i) & 0xFF);
  return image + text;
}

inline bool ReadText(CIDPEx& tree, const std::string& text) {
  const std::string image = ImageOf(text);
  return tree.ReadDataFromBuffer(image.data(), image.size()) != 0;
}

// A tree with every kind of value, awkward texts, a numbered list and several levels.
inline void FillRichSample(CIDPEx& tree) {
  tree.SetValue(L"Version:1.0");
  tree.SetSubValue(L"Version", L"1.0");
  tree.SetSubValue(L"0", 0);
  tree.SetSubValue(L"最小", -2147483647 - 1);
  tree.SetSubValue(L"最大", 2147483647);
  tree.SetSubValue(L"圆周率", 3.141592653589793);
  tree.SetSubValue(L"小", 5e-324);
  tree.SetSubValue(L"大", -1.7976931348623157e308);
  tree.SetSubValue(L"负零", -0.0);
  tree.SetSubValue(L"整", 20.0);
  tree.SetSubValue(L"", L"空键");
  tree.SetSubValue(CString(std::wstring(L"a\0b\"\\/\n\r\t\b\f\x01\x7f", 13)),
                   CString(std::wstring(L"\0\"", 2)));
  tree.SetSubValue(L"\U0001F600", L"\U0010FFFF 四字节");
  tree.SetSubValue(CString(std::wstring(1, wchar_t(0xD800))),
                   CString(std::wstring{wchar_t(0xDC00), L'x', wchar_t(0xDBFF)}));
  tree.SetSubValue(L"管径", L"");
  CIDPEx* list = tree.GetSubItem(L"管径");
  for (int i = 0; i < 20; ++i) {
    CString key;
    key.Format(L"%d", i);
    list->SetSubValue(key, i);
    CIDPEx* row = list->GetSubItem(key);
    row->SetSubValue(L"DN", 15 + i);
    row->SetSubValue(L"内径", 15.75 + i * 0.1);
    row->SetSubValue(L"名称 很长，超过十五个字节", L"焊接钢管，也超过十五个字节");
  }
}
