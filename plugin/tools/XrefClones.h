// Copies of what external references show, as plain entities of the drawing, so that a tool can work on them.
#pragma once

#include "plugin/base/ZpExport.h"

namespace ZP {

// Copies the model space of the file of every external reference, at the reference's position and scales (its
// rotation and normal are left out), each copy on the layer that it had, and hides the reference. What was
// remembered of copies made before is forgotten: those stay in the drawing, and their references hidden. A
// file that can't be read is told at the command line, and its reference stays as it is. False only for a
// drawing without any block reference.
ZP_EXPORT bool CloneXrefBlock();

// Erases those copies, on locked and frozen layers too, and shows their references again. False when one of
// them could not be erased; the others are all the same. What is remembered stays.
ZP_EXPORT bool DeleteCloneXrefBlock();

} // namespace ZP
