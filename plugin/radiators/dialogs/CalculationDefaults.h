// The input of a radiator calculation as the user left it last, remembered across runs of the program.
#pragma once

#include "plugin/radiators/SZPRadCalData.h"

namespace radiators {

struct CalculationField {
  double SZPRadCalData::*member;
  const wchar_t* key; // of the remembered value
};

inline constexpr CalculationField kCalculationFields[] = {
    {&SZPRadCalData::dbQj, L"传统采暖/散热器计算/散热器负荷"},
    {&SZPRadCalData::dbTg, L"传统采暖/散热器计算/供水温度"},
    {&SZPRadCalData::dbTh, L"传统采暖/散热器计算/回水温度"},
    {&SZPRadCalData::dbTn, L"传统采暖/散热器计算/室内温度"},
    {&SZPRadCalData::dbBeta1, L"传统采暖/散热器计算/β1片数或长度修正系数"},
    {&SZPRadCalData::dbBeta2, L"传统采暖/散热器计算/β2散热器支管连接方式修正系数"},
    {&SZPRadCalData::dbBeta3, L"传统采暖/散热器计算/β3散热器安装形式修正系数"},
    {&SZPRadCalData::dbBeta4, L"传统采暖/散热器计算/β4进入散热器流量修正系数"},
};

// A value that was never remembered has its default.
SZPRadCalData RememberedCalculation();
void RememberCalculation(const SZPRadCalData& data);

} // namespace radiators
