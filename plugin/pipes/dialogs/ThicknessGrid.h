// The grid of a duct material's wall thicknesses: the table's rows, and an empty one below them that becomes
// a row when its first cell is edited. A right click adds and deletes rows.
#pragma once

#include "host/ui/CGridCtrl.h"
#include "plugin/pipes/ducts/CZPDuctMaterial.h"

namespace pipes {

class ThicknessGrid : public CGridCtrl {
 public:
  ThicknessGrid(CFormWnd& form, const CString& caption);

  // Null shows no rows at all. The material must stay until another is shown.
  void Show(CZPDuctMaterial* material);

 private:
  enum MenuCommand { kNew = 1, kDelete = 2 };
  void Fill();
  void AddEmptyRow();
  bool IsTableRow(int row) const;
  void EndEdit(const UiEditEnd& end);
  void DoMenu(int command);

  CZPDuctMaterial* m_material = nullptr;
};

} // namespace pipes
