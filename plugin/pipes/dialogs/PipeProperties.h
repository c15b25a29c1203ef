// The property list of a pipe material: roughness and label scheme.
#pragma once

#include "host/ui/CPropTree.h"
#include "plugin/pipes/CZPPipeMaterial.h"

namespace pipes {

// Adds the groups and items, without values.
void BuildPipeProperties(CPropTree& list);
// Null shows an empty list that can't be changed.
void ShowPipeProperties(CPropTree& list, const CZPPipeMaterial* material);
// Takes all values over; numbers as the texts begin, 0 for none.
void ReadPipeProperties(const CPropTree& list, CZPPipeMaterial& material);

} // namespace pipes
