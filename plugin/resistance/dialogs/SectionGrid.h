// The fittings of a pipe section, in a grid with an empty row below that takes a further one. Names are
// chosen among those of the store; the coefficients are the store's for the section's diameter.
#pragma once

#include "host/ui/CGridCtrl.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"

namespace resistance {

class SectionGrid : public CGridCtrl {
 public:
  SectionGrid(CFormWnd& form, const CString& caption);

  // Names and numbers as the section has them, but fittings of one name in one row: each after the first
  // counts one, whatever its number.
  void Fill(const CZPLocalResistanceSettings& section);
  // What the rows show; a number that is none is 0.
  CZPArray<CZPPipeParts, CZPPipeParts&> Fittings() const;

  UiSignal<> Edited; // a cell has another text than before

 private:
  int InputRow() const { return GetRowCount() - 1; }
  int FindName(const CString& name, int except = -1) const;
  void AddInputRow();
  void Put(int row, const CString& name, int number);
  void AddOne(int row);
  void AddFitting(const CString& name, int number);
  void EndEdit(const UiEditEnd& end);
  void ChangeName(int row, const CString& name);

  CString m_diameter;
  std::shared_ptr<const std::vector<CString>> m_names; // that the cells of the first column offer
};

} // namespace resistance
