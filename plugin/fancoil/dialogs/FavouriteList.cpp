#include "plugin/fancoil/dialogs/FavouriteList.h"

#include <algorithm>

#include "plugin/base/TextList.h"
#include "plugin/fancoil/dialogs/Favourites.h"
#include "plugin/graph/Notice.h"

namespace fancoil {

FavouriteList::FavouriteList(CDialog& dialog, const CFCUManager& catalogue)
    : m_list(dialog, L"常用风机盘管"), m_take(dialog, L"←"), m_drop(dialog, L"→"), m_up(dialog, L"↑"),
      m_down(dialog, L"↓"), m_catalogue(catalogue) {
  m_take.SetToolTip(L"加入常用");
  m_drop.SetToolTip(L"移出常用");
  m_up.SetToolTip(L"上移");
  m_down.SetToolTip(L"下移");
  m_list.SelectionChanged.Connect([this] { Selected(); });
  m_drop.Clicked.Connect([this] { Drop(); });
  m_up.Clicked.Connect([this] { Move(-1); });
  m_down.Clicked.Connect([this] { Move(1); });
}

void FavouriteList::ShowWindow(bool show) {
  m_list.ShowWindow(show);
  for (CButton* button : {&m_take, &m_drop, &m_up, &m_down}) button->ShowWindow(show);
}

UiLayout FavouriteList::ListLayout() {
  return ui::Column(
      {ui::Item(m_list).Stretch(1).Size(190, 300), ui::Row({ui::Item(m_up), ui::Item(m_down), ui::Space()})});
}

UiLayout FavouriteList::ButtonLayout() {
  return ui::Column({ui::Space(), ui::Item(m_take), ui::Item(m_drop), ui::Space()});
}

void FavouriteList::Read() {
  m_commonList = ReadFavourites(m_catalogue);
  if (m_commonList.IsEmpty()) m_commonList = FirstFavourites(m_catalogue);
  Show(-1);
}

bool FavouriteList::Write() const {
  if (m_commonList.IsEmpty()) {
    notice::Tell(L"常用风机盘管列表不能为空!");
    return false;
  }
  WriteFavourites(m_commonList);
  return true;
}

void FavouriteList::Show(int selected) {
  const UiQuietly quietly(m_list);
  m_list.ResetContent();
  for (const CString& entry : m_commonList) m_list.AddString(entry);
  m_list.SetCurSel(selected);
}

CFCUEquipment* FavouriteList::Current() const {
  return FindFavourite(m_catalogue, m_list.SelectedText());
}

void FavouriteList::Take(const CString& entry) {
  if (ZP::IsInTextArr(entry, m_commonList)) return notice::Tell(L"所选择的风机盘管已经在常用风机盘管列表中!");
  m_commonList.Add(entry);
  Show(m_list.GetCurSel());
}

void FavouriteList::Drop() {
  const int row = m_list.GetCurSel();
  if (row < 0) return;
  m_commonList.RemoveAt(row);
  Show(std::min(row, static_cast<int>(m_commonList.GetSize()) - 1));
  Selected();
}

void FavouriteList::Move(int step) {
  const int row = m_list.GetCurSel();
  const int target = row + step;
  if (row < 0 || target < 0 || target >= m_commonList.GetSize()) return;
  std::swap(m_commonList[row], m_commonList[target]);
  Show(target);
}

} // namespace fancoil
