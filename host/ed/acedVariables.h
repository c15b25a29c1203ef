// System variables as plug-ins reach them; the table is in SystemVariables.
#pragma once

#include "host/db/resbuf.h"

// Fills in type and value (RTSHORT, RTLONG, RTREAL, RTSTR or RT3DPOINT); a text is the caller's to release
// with acutDelString. RTERROR for an unknown variable, or one of the drawing while none is open.
int acedGetVar(const wchar_t* name, resbuf* result);
// RTERROR for an unknown variable; RTREJ for one that can't be set, a value of another type, or one that it
// does not accept.
int acedSetVar(const wchar_t* name, const resbuf* value);

// Releases a text made by acutNewString. RTNORM, also for null.
int acutDelString(wchar_t*& text);
