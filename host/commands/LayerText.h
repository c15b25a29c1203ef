// Layer properties as words: what LAYER prints and what it reads.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDb.h"

#include <optional>

class AcDbLayerTableRecord;

namespace commands {

// "1(红)", "140".
CString ColorText(int index);
// A number of 1 to 255 or a name such as 红 or red.
std::optional<int> ParseColor(const CString& text);
// "0.50 毫米", "默认".
CString WeightText(AcDb::LineWeight weight);
// Millimetres, or 默认/Default; only widths that a drawing may hold.
std::optional<AcDb::LineWeight> ParseWeight(const CString& text);
// "开 解冻 解锁".
CString StateText(const AcDbLayerTableRecord& layer);
CString LinetypeName(const AcDbLayerTableRecord& layer);

} // namespace commands
