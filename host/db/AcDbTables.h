// All symbol tables but the blocks, for who works with several of them.
#pragma once

#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbLinetypeTable.h"
#include "host/db/AcDbNamedTables.h"
#include "host/db/AcDbTextStyleTable.h"
#include "host/db/AcDbViewportTable.h"
