// Process-wide settings of the geometry library.
#pragma once

#include "host/ge/AcGeTol.h"

struct AcGeContext {
  // The tolerance of every comparison that names none. A caller who changes it changes it for all.
  static AcGeTol gTol;
};
