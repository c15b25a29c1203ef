// Selection sets as plug-ins ask for them. Results are RTNORM; RTCAN for Escape; RTERROR for an empty
// selection, an unknown set or an index out of range; RTREJ for a mode or filter that is none.
#pragma once

#include "host/db/resbuf.h"
#include "host/ed/adsNames.h"

#include <cstdint>

// mode null or "" asks the user; "_:S" ends with the first entity; "_:$" takes the two prompts at first (for
// adding and for removing; the second isn't used). "_X" every entity of the drawing, "_A" those that are
// drawn, "_P" the previous selection, "_L" the last entity, "_W" and "_C" what a window with the corners
// first and second encloses or crosses, "_I" what was selected before the command. Modes go with or without
// "_" and in any case. filter may be null. The set belongs to the caller, who frees it with acedSSFree.
int acedSSGet(const wchar_t* mode, const void* first, const void* second, const resbuf* filter, ads_name set);

int acedSSLength(const ads_name set, std::int32_t* length);
int acedSSName(const ads_name set, std::int32_t index, ads_name entity);
int acedSSFree(const ads_name set);
// Adds an entity, or all of another set, to a set (or to a new one, when set is null or nil); result gets its
// name. Both null make an empty set.
int acedSSAdd(const long long* entity, const long long* set, ads_name result);
int acedSSDel(const ads_name entity, const ads_name set);
int acedSSMemb(const ads_name entity, const ads_name set);
// Sets what is selected outside of commands; a nil or null set clears it.
int acedSSSetFirst(const long long* grips, const long long* set);
