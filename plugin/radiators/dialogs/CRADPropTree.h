// The property list of a radiator: the names of its type and its own, its formula and the numbers that belong
// to it. The dialogs that show it decide when it is read.
#pragma once

#include "host/ui/CPropTree.h"
#include "plugin/radiators/CZPRadiator.h"

class CRADPropTree : public CPropTree {
 public:
  // The items by number.
  enum RadiatorItem { typeItem, nameItem, formulaItem, unitItem, aItem, bItem, areaItem, outputItem };

  CRADPropTree(CFormWnd& form, const CString& caption);

  // Shows a radiator, or for null a type without one. The radiator is remembered and must stay until another
  // is shown. What may be changed stays as it was.
  void Fill(const CString& typeName, const CZPRadiator* radiator);
  // Takes everything over but the numbers that the formula has no use for. Gives the name of the type,
  // without blanks at its ends; the radiator's own name keeps them.
  CString Read(CZPRadiator& radiator) const;
  // Which numbers may be changed under the formula that is shown, and what is told about it. The user's
  // choice of a formula does so as well, and shows the numbers that the remembered radiator has for it.
  void SetFormulaState();
  void SetNamesReadOnly(bool readOnly);

 private:
  int Formula() const; // the code that is shown, -1 for none
  void ChangeFormula();
  void ShowCoefficients(int formula);

  const CZPRadiator* m_pRadiator = nullptr;
};
