#include "plugin/radiators/dialogs/CalculationDefaults.h"

#include "plugin/base/DefaultValues.h"

SZPRadCalData radiators::RememberedCalculation() {
  SZPRadCalData data;
  for (const CalculationField& field : kCalculationFields) ZP::GetDefaultValue(field.key, data.*field.member);
  return data;
}

void radiators::RememberCalculation(const SZPRadCalData& data) {
  for (const CalculationField& field : kCalculationFields) ZP::SetDefaultValue(field.key, data.*field.member);
}
