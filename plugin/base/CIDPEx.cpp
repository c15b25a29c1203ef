// Access to keys and values. Files are in CIDPExFile.cpp.
#include "plugin/base/CIDPEx.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "host/afx/Numbers.h"
#include "plugin/base/idp/NodeAccess.h"
#include "plugin/base/idp/StoredText.h"

using idp::CompactValue;
using idp::NodeAccess;

namespace {

CString TextOf(const CompactValue& value) {
  if (value.GetKind() == CompactValue::Kind::Text) return idp::FromStoredText(value.Text());
  char digits[40];
  const auto end = value.GetKind() == CompactValue::Kind::Integer
                       ? std::to_chars(digits, digits + sizeof digits, value.Integer())
                       : std::to_chars(digits, digits + sizeof digits, value.Double());
  return CString(std::wstring(digits, end.ptr));
}

double DoubleOf(const CompactValue& value) {
  switch (value.GetKind()) {
  case CompactValue::Kind::Integer:
    return value.Integer();
  case CompactValue::Kind::Double:
    return value.Double();
  default:
    break;
  }
  return _wtof(TextOf(value).GetString());
}

int IntegerOf(const CompactValue& value) {
  if (value.GetKind() == CompactValue::Kind::Integer) return value.Integer();
  if (value.GetKind() == CompactValue::Kind::Text) return _wtoi(TextOf(value).GetString());
  const double number = value.Double();
  if (std::isnan(number)) return 0;
  if (number <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  if (number >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  return static_cast<int>(number);
}

} // namespace

CIDPEx::CIDPEx() = default;
CIDPEx::~CIDPEx() = default;

CIDPEx* CIDPEx::GetSubItem(CString key) {
  idp::SubKey* subKey = NodeAccess::Table(*this).Find(CompactValue(idp::StoredText(key.View())));
  return subKey ? &subKey->Node() : nullptr;
}

CompactValue* CIDPEx::FindValue(const CString& key) {
  idp::SubKey* subKey = NodeAccess::Table(*this).Find(CompactValue(idp::StoredText(key.View())));
  return subKey ? &subKey->Value() : nullptr;
}

CompactValue& CIDPEx::MakeValue(const CString& key) {
  CompactValue stored{idp::StoredText(key.View())};
  idp::SubKeyTable& table = NodeAccess::Table(*this);
  idp::SubKey* subKey = table.Find(stored);
  return subKey ? subKey->Value() : table.Append(std::move(stored)).Value();
}

int CIDPEx::GetSubValue(CString key, int& out) {
  const CompactValue* value = FindValue(key);
  if (value) out = IntegerOf(*value);
  return value != nullptr;
}

int CIDPEx::GetSubValue(CString key, double& out) {
  const CompactValue* value = FindValue(key);
  if (value) out = DoubleOf(*value);
  return value != nullptr;
}

int CIDPEx::GetSubValue(CString key, CString& out) {
  const CompactValue* value = FindValue(key);
  if (value) out = TextOf(*value);
  return value != nullptr;
}

void CIDPEx::SetSubValue(CString key, CString value) {
  MakeValue(key).SetText(idp::StoredText(value.View()));
}

void CIDPEx::SetSubValue(CString key, int value) {
  MakeValue(key).SetInteger(value);
}

void CIDPEx::SetSubValue(CString key, double value) {
  MakeValue(key).SetDouble(value);
}

void CIDPEx::GetValue(CString& out) {
  out = TextOf(NodeAccess::Value(*this));
}

void CIDPEx::SetValue(CString value) {
  NodeAccess::Value(*this).SetText(idp::StoredText(value.View()));
}
