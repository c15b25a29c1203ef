// The text styles of the working drawing.
#pragma once

#include "host/afx/CString.h"

#include <vector>

// In table order, without deleted ones; empty when the table can't be read.
std::vector<CString> TextStyleNames();
