// The tree of the layer manager: the scheme with its categories and groups, and the menu by which they are
// made, renamed and deleted. It works on the live scheme.
#pragma once

#include <vector>

#include "host/ui/CDialog.h"
#include "host/ui/CTreeCtrl.h"
#include "host/ui/UiSignal.h"

class CZPGroupLayer;
class CZPLayer;
class CZPLayerObject;
class CZPManagerLayer;

namespace layers {

class SchemeTree {
 public:
  enum Command { newCategory = 1, newGroup, deleteNode, rename };

  // Both outlive this.
  SchemeTree(CDialog& dialog, CZPManagerLayer& scheme);

  // All of the scheme, expanded; the scheme itself is selected.
  void Fill();
  // To be called before the nodes of the scheme go.
  void Clear() { m_tree.DeleteAllItems(); }

  // The selected group; null for none and for any other node.
  CZPGroupLayer* Group() const;
  // The layers below the selected node, in their order; all of the scheme where none is selected.
  std::vector<CZPLayer*> Layers() const;

  CTreeCtrl m_tree;
  UiSignal<> Selected; // another node is selected, or its layers are others

 private:
  CZPLayerObject* Current() const;
  HTREEITEM Insert(CZPLayerObject& node, HTREEITEM parent);
  std::vector<UiMenuItem> MenuItems() const;
  void Obey(int command);
  void NewCategory();
  void NewGroup();
  void Delete();
  void Rename();

  CDialog& m_dialog;
  CZPManagerLayer& m_scheme;
};

} // namespace layers
