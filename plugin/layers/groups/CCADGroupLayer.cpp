#include "plugin/layers/groups/CCADGroupLayer.h"

IMPLEMENT_DYNAMIC(CCADGroupLayer, CZPObject)
