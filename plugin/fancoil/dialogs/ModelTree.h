// The tree of the catalogue: its name, below it all makers, below each its models that pass the filters.
#pragma once

#include "host/ui/CTreeCtrl.h"
#include "plugin/fancoil/CFCUManager.h"

namespace fancoil {

// By mounting and form; an empty text passes all.
struct ModelFilter {
  CString install;
  CString structure;
  bool Passes(const SKTFCUEquipmentData& data) const;
};

class ModelTree : public CTreeCtrl {
 public:
  using CTreeCtrl::CTreeCtrl;

  // Nothing is selected afterwards.
  void Fill(const CFCUManager& catalogue, const ModelFilter& filter);
  // Opens the maker that the model names and selects the model; selects nothing where the tree hasn't got it,
  // and for null.
  void SelectModel(const CFCUEquipment* equipment);

  // What an item stands for; null when it is of another kind, and for null.
  CFCUFactory* MakerOf(HTREEITEM item) const;
  CFCUEquipment* ModelOf(HTREEITEM item) const;
};

} // namespace fancoil
