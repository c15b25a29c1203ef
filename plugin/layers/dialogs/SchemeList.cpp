#include "plugin/layers/dialogs/SchemeList.h"

#include "host/ui/CComboBox.h"
#include "plugin/layers/SchemeFiles.h"

void layers::FillSchemes(CComboBox& list) {
  const UiQuietly quietly(list);
  list.ResetContent();
  for (const CString& name : SchemeNames()) list.AddString(name);
}
