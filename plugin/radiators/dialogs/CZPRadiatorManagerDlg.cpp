#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"

#include <unordered_set>

#include "plugin/graph/Notice.h"
#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"

namespace {

enum Level { nothing = -1, catalogue = 0, type = 1, radiator = 2 };

// What an item of the tree stands for; null for no item.
CZPRadiatorObject* ObjectOf(const UiTreeItem* item) {
  return item ? static_cast<CZPRadiatorObject*>(item->data) : nullptr;
}

template <class Object> Object* As(CZPRadiatorObject* object) {
  return object && object->IsKindOf(Object::GetThisClass()) ? static_cast<Object*>(object) : nullptr;
}

int LevelOf(CZPRadiatorObject* object) {
  if (As<CZPRadiator>(object)) return radiator;
  if (As<CZPRadiatorType>(object)) return type;
  return object ? catalogue : nothing;
}

HTREEITEM AddItem(CTreeCtrl& tree, HTREEITEM above, CZPRadiatorObject& object) {
  return tree.InsertItem(object.GetName(), above, &object);
}

// What is selected once the item is gone: the next one beside it, else the one before it, else the one above.
HTREEITEM Neighbour(const UiTreeItem& item) {
  const auto& siblings = item.parent->children;
  for (std::size_t i = 0; i < siblings.size(); ++i) {
    if (siblings[i].get() != &item) continue;
    if (i + 1 < siblings.size()) return siblings[i + 1].get();
    if (i > 0) return siblings[i - 1].get();
  }
  return item.parent;
}

} // namespace

CZPRadiatorManagerDlg::CZPRadiatorManagerDlg(CZPRadiator* inUse, CWnd* parent)
    : CDialog(L"散热器管理器", parent), m_pRadiator(inUse) {
  m_tree.ShowCaption(false);
  m_properties.ShowCaption(false);
  m_tree.SelectionChanged.Connect([this] { ShowSelected(); });
  m_properties.ItemChanged.Connect([this](int) {
    if (CZPRadiator* changed = SelectedRadiator()) m_properties.Read(*changed);
  });
  m_add.Clicked.Connect([this] { Add(); });
  m_remove.Clicked.Connect([this] { Remove(); });
  m_modify.Clicked.Connect([this] { Modify(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_exit.Clicked.Connect([this] { OnCancel(); });
}

CZPRadiatorManagerDlg::~CZPRadiatorManagerDlg() {
  m_catalogue.SaveData();
}

UiLayout CZPRadiatorManagerDlg::Layout() {
  return ui::Column({
      ui::Row({ui::Item(m_tree).Stretch(1).Size(230, 340), ui::Item(m_properties).Stretch(1).Size(330, 340)})
          .Stretch(1),
      ui::Row({ui::Item(m_add), ui::Item(m_remove), ui::Item(m_modify), ui::Space(), ui::Item(m_ok),
               ui::Item(m_exit)}),
  });
}

void CZPRadiatorManagerDlg::OnInitDialog() {
  BuildTree();
  if (m_pRadiator) SelectByName(m_pRadiator->GetName());
  ShowSelected();
}

void CZPRadiatorManagerDlg::OnOK() {
  m_pChosen = SelectedRadiator();
  CDialog::OnOK();
}

// Types that stood open do so again.
void CZPRadiatorManagerDlg::BuildTree() {
  const UiQuietly quietly(m_tree);
  std::unordered_set<const void*> open;
  m_tree.Walk([&](HTREEITEM item) {
    if (item->expanded) open.insert(item->data);
    return true;
  });
  m_tree.DeleteAllItems();
  HTREEITEM root = AddItem(m_tree, nullptr, m_catalogue);
  m_tree.Expand(root);
  for (CZPRadiatorType* group : m_catalogue.m_arrTypes) {
    if (!group) continue;
    HTREEITEM item = AddItem(m_tree, root, *group);
    for (CZPRadiator* model : group->m_arrRadiators)
      if (model) AddItem(m_tree, item, *model);
    if (open.contains(item->data)) m_tree.Expand(item);
  }
}

// By name and not by object: of two radiators with one name, which only different types can hold, the first
// in the tree is selected, as whoever opens the manager is used to.
void CZPRadiatorManagerDlg::SelectByName(const CString& name) {
  m_tree.SelectItem(m_tree.Find(
      [&](const UiTreeItem& item) { return LevelOf(ObjectOf(&item)) == radiator && item.text == name; }));
}

CZPRadiatorType* CZPRadiatorManagerDlg::SelectedType() const {
  HTREEITEM item = m_tree.GetSelectedItem();
  if (As<CZPRadiator>(ObjectOf(item))) item = m_tree.GetParentItem(item);
  return As<CZPRadiatorType>(ObjectOf(item));
}

CZPRadiator* CZPRadiatorManagerDlg::SelectedRadiator() const {
  return As<CZPRadiator>(ObjectOf(m_tree.GetSelectedItem()));
}

void CZPRadiatorManagerDlg::ShowSelected() {
  m_nLevel = LevelOf(ObjectOf(m_tree.GetSelectedItem()));
  const CZPRadiatorType* group = SelectedType();
  m_properties.Fill(group ? group->GetName() : CString(), SelectedRadiator());
  m_properties.SetFormulaState();
  m_properties.SetNamesReadOnly(true);
  m_remove.EnableWindow(m_nLevel > catalogue);
  m_modify.EnableWindow(m_nLevel == radiator);
}

void CZPRadiatorManagerDlg::Add() {
  const CZPRadiatorType* group = SelectedType();
  CZPAddRadiatorDlg dialog(CZPAddRadiatorDlg::add, group ? group->GetName() : CString(), SelectedRadiator(),
                           this);
  if (dialog.DoModal() != IDOK) return;
  BuildTree();
  SelectByName(dialog.Radiator()->GetName());
  ShowSelected();
}

void CZPRadiatorManagerDlg::Modify() {
  CZPRadiator* const before = SelectedRadiator();
  if (!before) return;
  CZPAddRadiatorDlg dialog(CZPAddRadiatorDlg::modify, SelectedType()->GetName(), before, this);
  const bool done = dialog.DoModal() == IDOK;
  CZPRadiator* const after = dialog.Radiator();
  if (before == m_pRadiator) m_pRadiator = after;
  if (done) {
    BuildTree();
    SelectByName(after->GetName());
  } else {
    m_tree.SetItemText(m_tree.GetSelectedItem(), after->GetName()); // a refused change may have left its name
  }
  ShowSelected();
}

bool CZPRadiatorManagerDlg::MayRemove(const CZPRadiatorType* group, const CZPRadiator* model) const {
  CString text;
  if (m_pRadiator && !model && m_pRadiator->GetParent() == group) {
    text.Format(L"当前[%s]数据正在使用，不允许删除！？", group->GetName());
    notice::Warn(text); // there is nothing to decide, whatever is answered
    return false;
  }
  if (m_pRadiator && model == m_pRadiator) {
    text.Format(L"当前散热器[%s]数据正在使用，不允许删除！？", model->GetName());
    notice::Warn(text);
    return false;
  }
  text.Format(L"删除不可恢复，确定要删除[%s]吗？", model ? model->GetName() : group->GetName());
  return notice::Warn(text);
}

void CZPRadiatorManagerDlg::Remove() {
  CZPRadiatorType* const group = SelectedType();
  CZPRadiator* const model = SelectedRadiator();
  if (!group || !MayRemove(group, model)) return;
  HTREEITEM item = m_tree.GetSelectedItem();
  m_tree.SelectItem(Neighbour(*item));
  m_tree.DeleteItem(item);
  ShowSelected();
  if (model)
    group->Remove(model);
  else
    m_catalogue.Remove(group);
}
