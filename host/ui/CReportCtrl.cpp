#include "host/ui/CReportCtrl.h"

namespace {
constexpr int kTextRowHeight = 22;
} // namespace

int CReportCtrl::GetTotalWidth() const {
  int width = 0;
  for (int column = 0; column < GetColumnCount(); ++column) width += Column(column).width;
  return width;
}

int CReportCtrl::GetTotalHeight() const {
  int height = 0;
  for (int row = 0; row < GetRowCount(); ++row)
    height += Row(row).height > 0 ? Row(row).height : kTextRowHeight;
  return height;
}
