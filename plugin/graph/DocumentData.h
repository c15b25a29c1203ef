// The records of the open documents.
#pragma once

#include "plugin/graph/AsdkDataManager.h"
#include "plugin/graph/CDocData.h"

AsdkDataManager<CDocData>& DocumentData();
