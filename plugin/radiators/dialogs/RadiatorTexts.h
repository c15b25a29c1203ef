// What the calculation window says of a radiator.
#pragma once

#include "host/afx/CString.h"

class CZPRadiator;

namespace radiators {

CString TypeText(const CZPRadiator& radiator);
CString NameText(const CZPRadiator& radiator);
// The experimental data that its formula uses; empty for a formula code that is none.
CString ParameterText(const CZPRadiator& radiator);
// Its formula, with those that the terms of it come from.
CString FormulaText(const CZPRadiator& radiator);
// What the number that comes of the calculation is.
CString ResultCaption(const CZPRadiator& radiator);
// Whether its output depends on the temperatures of water and room.
bool FollowsTemperatures(const CZPRadiator& radiator);

// The annotation of a result: label, number with at most two decimals, unit.
CString NoteText(const CZPRadiator& radiator, double number);

} // namespace radiators
