#include "plugin/pipes/attributes/CZPRiserPipe.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/pipes/attributes/PipeKeys.h"

using namespace pipes;

CZPRiserPipe::~CZPRiserPipe() = default;

void CZPRiserPipe::InitEntityXdata() {
  InitCommonXdata();
  SetStartElevation(0);
  SetEndElevation(0);
  SetCode(0);
  SetPreLable(L"");
}

bool CZPRiserPipe::GetCode(int& code) const {
  CString text;
  if (!GetText(m_id, kCodeKey, text)) return false;
  code = _wtoi(text);
  return true;
}

bool CZPRiserPipe::SetCode(int code) {
  return SetText(m_id, kCodeKey, ZP::itoa(code));
}

bool CZPRiserPipe::GetPreLable(CString& text) const {
  return GetText(m_id, kCodePrefixKey, text);
}

bool CZPRiserPipe::SetPreLable(const CString& text) {
  return SetText(m_id, kCodePrefixKey, text);
}

bool CZPRiserPipe::SetStartElevation(double elevation) {
  return SetNumber(m_id, kStartElevationKey, elevation);
}

bool CZPRiserPipe::GetStartElevation(double& elevation) const {
  return GetNumber(m_id, kStartElevationKey, elevation);
}

bool CZPRiserPipe::SetEndElevation(double elevation) {
  return SetNumber(m_id, kEndElevationKey, elevation);
}

bool CZPRiserPipe::GetEndElevation(double& elevation) const {
  return GetNumber(m_id, kEndElevationKey, elevation);
}
