// The label of a pipe: prefix, parameter A, connector, parameter B and suffix of its material's scheme, with
// the parameters that name a number replaced by the numbers of the pipe's row.
#include "plugin/base/NumberText.h"
#include "plugin/base/Tolerance.h"
#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/PipeName.h"

namespace {

struct Parameter {
  const wchar_t* word;
  double SZPPipeDNData::*number;
};

constexpr Parameter kParameters[] = {
    {L"公称直径", &SZPPipeDNData::dbNominal},
    {L"外径", &SZPPipeDNData::dbOuter},
    {L"内径", &SZPPipeDNData::dbInner},
    {L"壁厚", &SZPPipeDNData::dbThickness},
};

// A word of the table gives its number, any other text stands for itself.
CString Replaced(const CString& word, const SZPPipeDNData& row) {
  for (const Parameter& parameter : kParameters)
    if (word == parameter.word) return ZP::ftoa(row.*parameter.number, 2, true);
  return word;
}

CString Trimmed(CString text) {
  text.Trim();
  return text;
}

CString TrimmedUnlessNothing(const CString& text) {
  const CString trimmed = Trimmed(text);
  return trimmed == L"无" ? CString() : trimmed;
}

// By exact name, else by the number that ends the name, else the default row: a pipe that is in no table gets
// a label too.
SZPPipeDNData RowForLabel(const CZPPipeMaterial& material, const CString& pipeName) {
  SZPPipeDNData row;
  if (material.GetPipeDNData(pipeName, row)) return row;
  const double number = ZP::GetCStringRightNumber(pipeName);
  for (const SZPPipeDNData& candidate : material.m_arrDNData)
    if (ZP::IsEqual(candidate.dbNominal, number, 0.001)) return candidate;
  return row;
}

} // namespace

CString CZPPipeMaterial::GetLabelText(const CString& pipeName) const {
  const SZPPipeDNData row = RowForLabel(*this, pipeName);
  // Only B may be nothing: "无" in A is printed. The connector stays even where B is nothing.
  const CString a = Replaced(Trimmed(m_strParamA), row);
  const CString b = Replaced(TrimmedUnlessNothing(m_strParamB), row);
  return m_strPrefix + a + TrimmedUnlessNothing(m_strConnector) + b + TrimmedUnlessNothing(m_strSuffix);
}
