#include "plugin/pipes/attributes/CZPMainPipe.h"

#include "plugin/pipes/attributes/PipeKeys.h"

CZPMainPipe::~CZPMainPipe() = default;

void CZPMainPipe::InitEntityXdata() {
  InitCommonXdata();
  SetElevation(0);
}

bool CZPMainPipe::SetElevation(double elevation) {
  return pipes::SetNumber(m_id, pipes::kElevationKey, elevation);
}

bool CZPMainPipe::GetElevation(double& elevation) const {
  return pipes::GetNumber(m_id, pipes::kElevationKey, elevation);
}
