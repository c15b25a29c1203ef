// The curves that the host understands, and the point, for who works with all of them.
#pragma once

#include "host/db/AcDbArc.h"
#include "host/db/AcDbCircle.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcDbPoint.h"
#include "host/db/AcDbPolyline.h"
