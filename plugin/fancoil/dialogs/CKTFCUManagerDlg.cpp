#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"

#include <algorithm>

#include "plugin/base/DefaultValues.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerAddDlg.h"
#include "plugin/fancoil/dialogs/Favourites.h"
#include "plugin/graph/Notice.h"

namespace {

constexpr const wchar_t* kInstallKey = L"空调水路\\风机盘管\\管理器\\安装形式过滤";
constexpr const wchar_t* kStructKey = L"空调水路\\风机盘管\\管理器\\结构形式过滤";
constexpr const wchar_t* kAll = L"ALL";

// As it is kept and compared.
CString FilterOf(const CComboBox& box) {
  return box.GetText() == kAll ? CString() : box.GetText();
}

// What is remembered and isn't among the entries selects all.
CString FillFilter(CComboBox& box, const wchar_t* key, std::initializer_list<const wchar_t*> styles) {
  CString remembered;
  ZP::GetDefaultValue(key, remembered);
  box.ResetContent();
  box.AddString(kAll);
  for (const wchar_t* style : styles) box.AddString(style);
  box.SetCurSel(std::max(box.FindStringExact(remembered), 0));
  return FilterOf(box);
}

} // namespace

CKTFCUManagerDlg::CKTFCUManagerDlg(bool favourites, CWnd* parent)
    : CKTFCUManagerDlg(CFCUManager::GetInstance()->GetInitialFCU(), favourites, parent) {}

CKTFCUManagerDlg::CKTFCUManagerDlg(const CString& maker, const CString& model, CWnd* parent)
    : CKTFCUManagerDlg(CFCUManager::GetInstance()->GetFCUEquipment(model, maker), parent) {}

CKTFCUManagerDlg::CKTFCUManagerDlg(CFCUEquipment* equipment, CWnd* parent)
    : CKTFCUManagerDlg(equipment, false, parent) {}

CKTFCUManagerDlg::CKTFCUManagerDlg(CFCUEquipment* equipment, bool favourites, CWnd* parent)
    : CDialog(L"风机盘管数据管理", parent), m_pCurrent(equipment), m_bReadOnly(favourites),
      m_bCommon(favourites) {
  m_properties.ShowCaption(false);
  m_tree.ShowCaption(false);
  m_favourites.ShowWindow(m_bCommon);

  m_tree.SelectionChanged.Connect([this] {
    if (CFCUEquipment* model = m_tree.ModelOf(m_tree.GetSelectedItem())) MakeCurrent(model);
  });
  m_tree.DoubleClicked.Connect([this](HTREEITEM) {
    if (m_bCommon) TakeFavourite();
  });
  for (CComboBox* box : {&m_install, &m_structure})
    box->SelectionChanged.Connect([this] {
      m_szInstallFilter = FilterOf(m_install);
      m_szStructFilter = FilterOf(m_structure);
      FillTree();
    });
  m_favourites.Selected.Connect([this] { SelectFavourite(); });
  m_favourites.m_take.Clicked.Connect([this] { TakeFavourite(); });
  m_add.Clicked.Connect([this] { Add(); });
  m_modify.Clicked.Connect([this] { Modify(); });
  m_delete.Clicked.Connect([this] { Delete(); });
  m_save.Clicked.Connect([this] { Save(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CKTFCUManagerDlg::Layout() {
  std::vector<UiLayout> panels;
  if (m_bCommon) {
    panels.push_back(m_favourites.ListLayout());
    panels.push_back(m_favourites.ButtonLayout());
  }
  panels.push_back(
      ui::Column({ui::Item(m_install), ui::Item(m_structure), ui::Item(m_tree).Stretch(1).Size(210, 300)}));
  panels.push_back(ui::Item(m_properties).Stretch(1).Size(330, 430));
  panels.push_back(ui::Column({ui::Item(m_preview).Stretch(1).Size(240, 240),
                               ui::Row({ui::Item(m_add), ui::Item(m_modify), ui::Item(m_delete)})}));
  return ui::Column({
      ui::Row(std::move(panels)).Stretch(1),
      ui::Row({ui::Space(), ui::Item(m_save), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

void CKTFCUManagerDlg::OnInitDialog() {
  if (!m_operation.Initial()) {
    notice::Tell(L"数据库打开失败。");
    return OnCancel();
  }
  if (m_bCommon) {
    m_bReadOnly = true;
    m_favourites.Read();
  }
  m_szInstallFilter = FillFilter(m_install, kInstallKey, {L"明装", L"暗装"});
  m_szStructFilter = FillFilter(m_structure, kStructKey, {L"卧式", L"立式"});
  m_properties.Fill(true);
  for (CButton* button : {&m_save, &m_add, &m_modify, &m_delete}) button->ShowWindow(!m_bReadOnly);
  FillTree();
  ShowCurrent();
}

void CKTFCUManagerDlg::OnOK() {
  Save();
  if (m_bCanClose) CDialog::OnOK();
}

// A model that was deleted is not there to be selected, though one of its name may be.
void CKTFCUManagerDlg::FillTree() {
  m_tree.Fill(m_catalogue, {m_szInstallFilter, m_szStructFilter});
  m_tree.SelectModel(Equipment());
}

void CKTFCUManagerDlg::ShowCurrent() {
  m_properties.Show(m_pCurrent ? &m_pCurrent->m_data : nullptr);
  if (m_pCurrent)
    m_preview.ShowBlock(m_pCurrent->m_data.szDwgPath);
  else
    m_preview.ShowNothing();
}

void CKTFCUManagerDlg::MakeCurrent(CFCUEquipment* equipment) {
  m_pCurrent = equipment;
  m_deleted.reset();
  ShowCurrent();
}

// --- the catalogue

void CKTFCUManagerDlg::Add() {
  CKTFCUManagerAddDlg dialog(m_pCurrent ? m_pCurrent->m_data.szFactory : CString(), this);
  if (dialog.DoModal() != IDOK) return;
  const SKTFCUEquipmentData& record = dialog.Record();
  CFCUFactory* maker = m_catalogue.GetFactory(record.szFactory);
  if (!maker) {
    auto made = std::make_unique<CFCUFactory>();
    made->SetName(record.szFactory);
    maker = made.get();
    if (m_catalogue.Add(maker)) made.release();
  }
  auto equipment = std::make_unique<CFCUEquipment>();
  equipment->m_data = record;
  equipment->SetName(record.szMode);
  if (maker->Add(equipment.get())) equipment.release();
  FillTree();
  RegisterBlock(dialog);
}

// The tree goes on showing the old name until it is filled again.
void CKTFCUManagerDlg::Modify() {
  CFCUEquipment* changed = Equipment();
  if (!changed) return;
  CKTFCUManagerAddDlg dialog(*changed, this);
  if (dialog.DoModal() != IDOK) return;
  changed->m_data = dialog.Record();
  changed->SetName(dialog.Record().szMode);
  ShowCurrent();
  RegisterBlock(dialog);
}

// For as long as this dialog is open; connections of the block, saved elsewhere, put it on the disk.
void CKTFCUManagerDlg::RegisterBlock(const CKTFCUManagerAddDlg& made) {
  if (made.HasBlock()) m_operation.AddOrModifyFCUBlock(made.Record().szDwgPath, made.LabelPoint(), false);
}

template <class Owner, class Entry>
void CKTFCUManagerDlg::Remove(Owner& owner, Entry& entry, HTREEITEM item, bool current) {
  CString question;
  question.Format(L"删除不可恢复，确定要删除[%s]吗？", entry.GetName());
  if (!notice::Confirm(question)) return;
  if (current) {
    m_deleted = std::make_unique<CFCUEquipment>(*m_pCurrent);
    m_deleted->SetParent(nullptr);
    m_pCurrent = m_deleted.get();
  }
  owner.Remove(&entry);
  m_tree.DeleteItem(item);
}

void CKTFCUManagerDlg::Delete() {
  HTREEITEM item = m_tree.GetSelectedItem();
  if (CFCUEquipment* model = m_tree.ModelOf(item)) {
    if (auto* maker = m_tree.MakerOf(m_tree.GetParentItem(item)))
      Remove(*maker, *model, item, model == m_pCurrent);
  } else if (CFCUFactory* maker = m_tree.MakerOf(item)) {
    const auto& models = maker->m_arrEquipments;
    Remove(m_catalogue, *maker, item, std::find(models.begin(), models.end(), m_pCurrent) != models.end());
  }
}

void CKTFCUManagerDlg::Save() {
  ZP::SetDefaultValue(kInstallKey, m_szInstallFilter);
  ZP::SetDefaultValue(kStructKey, m_szStructFilter);
  if (!m_bReadOnly) m_catalogue.SaveData();
  m_bCanClose = !m_bCommon || m_favourites.Write();
}

// --- the favourites

void CKTFCUManagerDlg::SelectFavourite() {
  if (!m_favourites.IsSelected()) return;
  MakeCurrent(m_favourites.Current());
  m_tree.SelectModel(m_pCurrent);
}

// A maker without models is an item without children too. Its entry names no model, and is dropped when the
// list is next read.
void CKTFCUManagerDlg::TakeFavourite() {
  HTREEITEM item = m_tree.GetSelectedItem();
  if (!item || m_tree.ItemHasChildren(item)) return;
  const CFCUFactory* maker = m_tree.MakerOf(m_tree.GetParentItem(item));
  m_favourites.Take(maker ? fancoil::FavouriteEntry(item->text, maker->GetName()) : item->text);
}
