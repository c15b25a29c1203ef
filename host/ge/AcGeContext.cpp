// The one instance of the default tolerance; this library is shared so that plug-ins see the same one.
#include "host/ge/AcGeContext.h"

constinit AcGeTol AcGeContext::gTol;
