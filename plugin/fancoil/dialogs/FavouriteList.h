// The panel of favourites: the list that the user keeps, with its buttons. It is for picking only, and hidden
// where models are managed.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CListBox.h"
#include "plugin/fancoil/CFCUManager.h"

namespace fancoil {

class FavouriteList {
 public:
  // The catalogue outlives it.
  FavouriteList(CDialog& dialog, const CFCUManager& catalogue);

  void ShowWindow(bool show);
  // What is remembered, or the first models of the catalogue where nothing is; nothing is selected.
  void Read();
  // Remembers the list. False, with a word to the user, for an empty one.
  bool Write() const;
  // Appends an entry; tells the user where it is in already.
  void Take(const CString& entry);
  bool IsSelected() const { return m_list.GetCurSel() >= 0; }
  // The model of the selected entry; null where the catalogue hasn't got it.
  CFCUEquipment* Current() const;

  UiLayout ListLayout();
  UiLayout ButtonLayout(); // between the list and what it takes from

  CListBox m_list;
  CButton m_take, m_drop, m_up, m_down;
  UiSignal<> Selected; // another entry is selected; or the same was clicked

 private:
  void Show(int selected);
  void Drop();
  void Move(int step);

  const CFCUManager& m_catalogue;
  CStringArray m_commonList;
};

} // namespace fancoil
