// The grid of standard duct sizes of one shape, sorted by width, with an empty row below that takes a new
// size.
#pragma once

#include "host/ui/CGridCtrl.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"

namespace pipes {

enum class DuctShape { rectangular, round };

class SizeGrid : public CGridCtrl {
 public:
  SizeGrid(CFormWnd& form, const CString& caption);

  void Show(DuctShape shape);

 private:
  void Fill();
  void EndEdit(const UiEditEnd& end);
  void AddSize(const UiEditEnd& end, const CString& text);
  void ChangeWidth(const UiEditEnd& end, const CString& text, CZPDuctDiameter& size);
  void ChangeHeight(const UiEditEnd& end, const CString& text, CZPDuctDiameter& size);
  CZPArray<CZPDuctDiameter*, CZPDuctDiameter*>& Sizes() const;
  void Sort();

  CZPDuctMaterialManager& m_catalogue = *CZPDuctMaterialManager::GetInstance();
  DuctShape m_shape = DuctShape::rectangular;
};

} // namespace pipes
