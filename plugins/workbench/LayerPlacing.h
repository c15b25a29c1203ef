// How commands put what they made on a layer of the scheme.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

#include <memory>

class AcDbEntity;

namespace workbench {

// Makes the drawing's layer for the identifier, if need be. False, with the reason told, when nothing can be
// drawn on it: it is locked, or its name is none that a layer can have. A layer that is off or frozen is told
// of and will do.
bool PrepareLayer(const CString& identifier);

// Asks for an identifier as AskLayerIdentifier does until its layer can be drawn on, and prepares it. False
// for Escape.
bool AskPlacingLayer(const CString& preset, const wchar_t* const* usual, CString& identifier);

// Takes the entity into the current space, on the identifier's layer and by layer in its looks. A null id,
// with the reason told, when that can't be. The layer must be prepared.
AcDbObjectId AppendOnLayer(std::unique_ptr<AcDbEntity> entity, const CString& identifier);

} // namespace workbench
