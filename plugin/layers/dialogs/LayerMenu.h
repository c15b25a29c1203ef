// The menu of the layer table: making, deleting, copying and changing layer definitions of the live scheme.
#pragma once

#include <memory>
#include <vector>

#include "host/ui/CDialog.h"
#include "host/ui/UiContextMenu.h"
#include "plugin/layers/CZPLayer.h"

class CZPLayerGridCtrl;

namespace layers {

class SchemeTree;

class LayerMenu {
 public:
  enum Command { newLayer = 1, deleteLayer, pick, copy, paste, modify };

  // All outlive this.
  LayerMenu(CDialog& dialog, CZPLayerGridCtrl& grid, const SchemeTree& tree);

  const CZPLayer* Clipboard() const { return m_clipboard.get(); } // null until something was copied

 private:
  std::vector<UiMenuItem> Items() const;
  void Obey(int command);
  void New();
  void Delete();
  void PickFromDrawing();
  void Copy();
  void Paste();
  void ModifySelected();

  CDialog& m_dialog;
  CZPLayerGridCtrl& m_grid;
  const SchemeTree& m_tree;
  std::unique_ptr<CZPLayer> m_clipboard;
};

} // namespace layers
