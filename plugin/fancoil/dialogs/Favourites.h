// The fan-coil units that the user keeps at hand: texts "model|maker" in the order of the list, remembered
// across runs of the program.
#pragma once

#include "plugin/fancoil/CFCUManager.h"

namespace fancoil {

CString FavouriteEntry(const CString& model, const CString& maker);
// The model of an entry: what stands before and behind the first "|" that something stands before. Null for
// an entry without one, and when the catalogue has no such model.
CFCUEquipment* FindFavourite(const CFCUManager& catalogue, const CString& entry);

// What is remembered, without entries whose model isn't in the catalogue.
CStringArray ReadFavourites(const CFCUManager& catalogue);
void WriteFavourites(const CStringArray& entries);
// For a user without favourites: the first models of the catalogue.
CStringArray FirstFavourites(const CFCUManager& catalogue);

} // namespace fancoil
