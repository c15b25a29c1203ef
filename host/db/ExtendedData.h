// The extended data of one application in an object's record.
#pragma once

#include "host/db/DxfRecord.h"

#include <string>
#include <string_view>

namespace dxf {

// The record with the application's data replaced, appended where it has none, or taken out when tags is
// empty. The name is as the file has it; case does not count. All else stays as it stands.
DxfRecord withExtendedData(const DxfRecord& record, std::string_view application, const std::string& tags);

} // namespace dxf
