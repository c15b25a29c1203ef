// The prompts that plug-ins call. Results are RTNORM, RTNONE (Enter), RTCAN (Escape), RTKWORD (a keyword, see
// acedGetInput) and RTERROR. Points are world coordinates: the host works in the world system alone.
#pragma once

#include "host/db/resbuf.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/adsNames.h"

#include <cstddef>

// Flags (RSG_...) and keywords for the next of the prompts below.
int acedInitGet(int flags, const wchar_t* keywords);
// The keyword that the latest prompt gave. RTERROR when the buffer is too small, and the text is then cut.
int acedGetInput(wchar_t* buffer, std::size_t size = 512);

// base, which may be null, is where relative coordinates and the rubber band start.
int acedGetPoint(const ads_real* base, const wchar_t* prompt, ads_real* result);
int acedGetCorner(const ads_real* base, const wchar_t* prompt, ads_real* result);
int acedGetReal(const wchar_t* prompt, ads_real* result);
int acedGetInt(const wchar_t* prompt, int* result);
// A length: a number, or the distance of a point from the base or from a point asked for first.
int acedGetDist(const ads_real* base, const wchar_t* prompt, ads_real* result);
// An angle in radians, 0 to below 2 pi: a number in degrees, or the direction of a point from the base.
int acedGetAngle(const ads_real* base, const wchar_t* prompt, ads_real* result);
// An empty line gives an empty text and RTNORM. withBlanks: a blank doesn't end the text.
int acedGetString(int withBlanks, const wchar_t* prompt, wchar_t* result, std::size_t size);
int acedGetString(int withBlanks, const wchar_t* prompt, CString& result);
int acedGetKword(const wchar_t* prompt, wchar_t* result, std::size_t size);
int acedGetKword(const wchar_t* prompt, CString& result);
// One entity and the point it was picked at.
int acedEntSel(const wchar_t* prompt, ads_name entity, ads_real* point);

// A message box with the program's caption and the one button for having read it.
int acedAlert(const wchar_t* text);
