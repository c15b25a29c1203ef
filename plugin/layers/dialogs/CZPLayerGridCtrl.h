// The table of layer definitions in the layer manager. Each row carries its CZPLayer, and a change of a cell
// goes into it at once, the whole row as the cells show it.
#pragma once

#include <vector>

#include "host/ui/CGridCtrl.h"
#include "plugin/layers/CZPLayer.h"

class CZPLayerGridCtrl : public CGridCtrl {
 public:
  explicit CZPLayerGridCtrl(CFormWnd& form);

  // Rows for these layers, numbered from 1. The layers are not owned.
  void Show(const std::vector<CZPLayer*>& shown);
  // A row at the end; gives it.
  int AddLayer(CZPLayer& layer);
  // Rows anew from their layers.
  void ShowRow(int row);

  // Null without a current row, and for the heading.
  CZPLayer* Current() const { return LayerAt(GetFocusRow()); }
  CZPLayer* LayerAt(int row) const;

  // As if the user had given the cell this text. An identifier is trimmed and tested: where it is empty the
  // row stays as it was; where another layer has it, that is only told.
  void ChangeCell(int row, int column, const CString& text);
  // The look of entities that are drawn by layer, on the layer of that name. In the cells alone; see
  // WriteRows.
  void ShowByLayer(int row, const CString& userLayer);
  // All rows as the cells show them: numbers with the decimals that can be seen.
  void WriteRows();

 private:
  void Choose(int row, int column);
  bool CheckIdentifier(int row);
  void WriteRow(int row);
};
