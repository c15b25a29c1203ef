// The parameters of a fan-coil unit as a property list. The size of its block as drawn is not among them: it
// follows from the block.
#pragma once

#include "host/ui/CPropTree.h"
#include "plugin/fancoil/SKTFCUEquipmentData.h"

class CKTFCUManagerPropTree : public CPropTree {
 public:
  using CPropTree::CPropTree;

  // Makes groups and items anew, without values. Maker and block name can't be edited in either case.
  void Fill(bool readOnly);
  // Lets maker and block name be edited, or not.
  void EnableNames(bool enable);

  // Both pass over an item that is not the one that they expect at its place.
  void Show(const SKTFCUEquipmentData* data); // null empties the values
  // Numbers as their texts begin, 0 for none.
  void Read(SKTFCUEquipmentData& data) const;
};
