#include "plugin/pipes/attributes/Elevation.h"

#include "host/ed/adsNames.h"
#include "plugin/pipes/attributes/PipeKeys.h"

namespace {

constexpr int kElevationDigits = 2;

} // namespace

double ZP::GetElevation(const AcDbObjectId& id) {
  double value = 0;
  pipes::GetNumber(id, pipes::kElevationKey, value);
  return value;
}

bool ZP::SetElevation(const AcDbObjectId& id, double& value) {
  return pipes::SetNumber(id, pipes::kElevationKey, value, kElevationDigits);
}

double ZP::GetElevation(long long* name) {
  AcDbObjectId id;
  return acdbGetObjectId(id, name) == Acad::eOk ? GetElevation(id) : 0;
}

bool ZP::SetElevation(long long* name, double& value) {
  AcDbObjectId id;
  return acdbGetObjectId(id, name) == Acad::eOk && SetElevation(id, value);
}
