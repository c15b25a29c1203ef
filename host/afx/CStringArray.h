// An array of texts.
#pragma once

#include "host/afx/CArray.h"
#include "host/afx/CString.h"

class CStringArray : public CArray<CString, const CString&> {};
