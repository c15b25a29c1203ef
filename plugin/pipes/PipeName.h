// How a row of a diameter table is called: the material's prefix and the nominal diameter, such as "DN20".
#pragma once

#include "host/afx/CString.h"
#include "plugin/pipes/SZPPipeDNData.h"

CString PipeNameOf(const CString& prefix, const SZPPipeDNData& row);
