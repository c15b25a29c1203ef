#include "plugin/layers/LayerFieldText.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"

namespace {

constexpr int kDecimals = 2;

CString TextOf(const CString& text) {
  return text;
}
CString TextOf(int number) {
  return ZP::itoa(number);
}
CString TextOf(double number) {
  return ZP::ftoa(number, kDecimals, true);
}

void Read(const CString& text, CString& value) {
  value = text;
}
void Read(const CString& text, int& value) {
  value = _wtoi(text);
}
void Read(const CString& text, double& value) {
  value = afx::wcstod(text, nullptr);
}

} // namespace

CString layers::FieldText(const SZPLayerData& data, const LayerField& field) {
  return std::visit([&](auto member) { return TextOf(data.*member); }, field.member);
}

void layers::SetFieldText(SZPLayerData& data, const LayerField& field, const CString& text) {
  std::visit([&](auto member) { Read(text, data.*member); }, field.member);
}
