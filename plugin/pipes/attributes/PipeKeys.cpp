#include "plugin/pipes/attributes/PipeKeys.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Xdata.h"

bool pipes::SetText(const AcDbObjectId& id, const wchar_t* key, const CString& value) {
  return ZP::SetXdata(id, key, value) != 0;
}

bool pipes::SetNumber(const AcDbObjectId& id, const wchar_t* key, double value, int digits) {
  return SetText(id, key, ZP::ftoa(value, digits, true));
}

bool pipes::GetText(const AcDbObjectId& id, const wchar_t* key, CString& value) {
  return ZP::GetXdata(id, key, value) != 0;
}

bool pipes::GetNumber(const AcDbObjectId& id, const wchar_t* key, double& value) {
  CString text;
  if (!GetText(id, key, text)) return false;
  value = afx::wcstod(text, nullptr);
  return true;
}
