// All fields of a radiator as one text, so that two are compared at a glance, numbers that are none included.
#pragma once

#include "host/afx/Numbers.h"
#include "plugin/radiators/RadiatorFields.h"

inline CString FieldText(int value) {
  return CString(std::to_wstring(value));
}
inline CString FieldText(double value) {
  return CString::FromUtf8(afx::ShortestDouble(value));
}
inline CString FieldText(const CString& value) {
  return value;
}

inline CString RadiatorText(const CZPRadiator& radiator) {
  CString text = radiator.GetName();
  for (const RadiatorField& field : kRadiatorFields)
    std::visit([&](auto member) { text += CString(L"|") + field.key + L"=" + FieldText(radiator.*member); },
               field.member);
  return text;
}
