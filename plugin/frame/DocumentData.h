// The records of the open documents.
#pragma once

#include "plugin/frame/AsdkDataManager.h"
#include "plugin/frame/CDocData.h"

AsdkDataManager<CDocData>& DocumentData();
