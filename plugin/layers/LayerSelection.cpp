// Asking the user for entities, of which only their layers matter.
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/ArxDbgUiPrEntity.h"
#include "plugin/graph/EntityLayer.h"
#include "plugin/layers/LayerService.h"

bool ZP::GetSelectedEntityLayer(CString& layer) {
  ArxDbgUiPrEntity prompt(L"请选择实体");
  if (prompt.go() != ArxDbgUiPrBase::kOk) return false;
  return GetEntityLayer(prompt.objectId(), layer);
}

bool ZP::GetSelectedEntityLayer(CStringArray& layers) {
  ArxDbgSelSet selection;
  selection.setAllowPickfirst(true);
  // An empty selection is no answer: the question comes again until there is one or the user cancels.
  while (selection.userSelect(L"\n请选择实体:") != ArxDbgSelSet::kSelected)
    if (selection.lastStatus() == ArxDbgSelSet::kCanceled) break;
  for (const AcDbObjectId& id : selection.ids()) {
    CString layer;
    if (GetEntityLayer(id, layer)) layers.Add(layer);
  }
  return !layers.IsEmpty();
}
