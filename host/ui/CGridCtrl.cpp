#include "host/ui/CGridCtrl.h"

void CGridCtrl::SetHeading(const std::vector<Heading>& headings) {
  std::vector<CString> titles;
  for (const Heading& heading : headings) {
    AddColumn(CString(), heading.width);
    titles.push_back(heading.title);
  }
  SetRowFixed(InsertRow(GetFixedRowCount(), titles), true);
}

int CGridCtrl::GetFixedRowCount() const {
  int count = 0;
  while (count < GetRowCount() && Row(count).fixed) ++count;
  return count;
}
