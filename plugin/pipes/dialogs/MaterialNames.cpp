#include "plugin/pipes/dialogs/MaterialNames.h"

#include "plugin/graph/Notice.h"

pipes::NameFault pipes::CheckMaterialName(const CEditListCtrl& list, int row, const CString& name) {
  if (name.IsEmpty()) return NameFault::empty;
  for (int other = 0; other < list.GetRowCount(); ++other)
    if (other != row && list.GetItemText(other, 0) == name) return NameFault::taken;
  return NameFault::none;
}

void pipes::TellNameFault(NameFault fault, const CString& name) {
  CString text = L"管材材质名称不能为空字符串，请重新输入材质名称！";
  if (fault == NameFault::taken) text.Format(L"【%s】已经存在，请重新输入材质名称！", name);
  if (fault != NameFault::none) notice::Tell(text);
}
