// The catalogue that the dialogs of radiators are tried over: 铸铁(四柱 柱翼) 钢制(板型) 空().
#pragma once

#include "plugin/radiators/dialogs/CRADPropTree.h"
#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"
#include "tests/support/DialogFixture.h"

class RadiatorDialogs : public RadiatorCatalogueFixture {
 protected:
  using Item = CRADPropTree::RadiatorItem;

  RadiatorDialogs() {
    iron = AddType(L"铸铁");
    column = AddRadiator(iron, L"四柱");
    column->m_dA = 0.651;
    column->m_dB = 1.286;
    finned = AddRadiator(iron, L"柱翼");
    finned->m_nFormula = 1;
    finned->m_dC = 2.237;
    finned->m_dD = 0.302;
    finned->m_dF = 0.235;
    steel = AddType(L"钢制");
    panel = AddRadiator(steel, L"板型");
    panel->m_nFormula = 2;
    panel->m_strUnit = L"m";
    panel->m_dQs = 1286.5;
    empty = AddType(L"空");
  }
  // "a|b|c" for the texts of all items.
  static CString Texts(const CPropTree& list) {
    CString text;
    for (int i = 0; i < list.GetItemCount(); ++i) text += (i ? L"|" : L"") + list.GetText(i);
    return text;
  }
  // One sign an item: e for editable, r for read-only.
  static CString Flags(const CPropTree& list) {
    CString text;
    for (int i = 0; i < list.GetItemCount(); ++i) text += list.Item(i).readOnly ? L"r" : L"e";
    return text;
  }
  // The names as the file has them.
  CString SavedNames() {
    Reload();
    return Names();
  }

  UiFrontEndScript frontEnd;
  CZPRadiatorType *iron, *steel, *empty;
  CZPRadiator *column, *finned, *panel;
};
