// The local resistances of a pipe, kept with its entity as a record that any CAD program carries along.
// docs/resistance.md tells its form.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"

namespace workbench {

// What the pipe's record holds; an empty section where there is none. The diameter is not in it.
CZPLocalResistanceSettings ReadSection(const AcDbObjectId& pipe);
// False when the pipe can't be changed.
bool WriteSection(const AcDbObjectId& pipe, const CZPLocalResistanceSettings& section);

} // namespace workbench
