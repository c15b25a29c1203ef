// The drawings of fan-coil units, one file for each block, and the names of blocks in the catalogue.
#pragma once

#include "plugin/fancoil/CFCUManager.h"

namespace fancoil {

// Where the block's drawing stands.
CString BlockFile(const CString& block);
// A name that no model has, from the highest number that ends the name of any block.
CString FreeBlockName(const CFCUManager& catalogue);
// How many models are drawn by the block.
int CountModelsOfBlock(const CFCUManager& catalogue, const CString& block);

} // namespace fancoil
