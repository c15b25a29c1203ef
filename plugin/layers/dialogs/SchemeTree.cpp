#include "plugin/layers/dialogs/SchemeTree.h"

#include <memory>

#include "plugin/graph/Notice.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/dialogs/CZPRenameDlg.h"

namespace {

void Append(const CZPGroupLayer& group, std::vector<CZPLayer*>& all) {
  all.insert(all.end(), group.Layers().begin(), group.Layers().end());
}

void Append(const CZPSystemLayer& category, std::vector<CZPLayer*>& all) {
  for (const CZPGroupLayer* group : category.Groups()) Append(*group, all);
}

} // namespace

layers::SchemeTree::SchemeTree(CDialog& dialog, CZPManagerLayer& scheme)
    : m_tree(dialog, L"图层分组"), m_dialog(dialog), m_scheme(scheme) {
  m_tree.ShowCaption(false);
  m_tree.SelectionChanged.Connect([this] { Selected(); });
  m_tree.Menu.SetProvider([this] { return MenuItems(); });
  m_tree.Menu.Chosen.Connect([this](int command) { Obey(command); });
}

HTREEITEM layers::SchemeTree::Insert(CZPLayerObject& node, HTREEITEM parent) {
  HTREEITEM item = m_tree.InsertItem(node.GetName(), parent, &node);
  m_tree.Expand(item);
  if (parent) m_tree.Expand(parent); // the user may have closed it, and is to see what is new
  return item;
}

void layers::SchemeTree::Fill() {
  const UiQuietly quietly(m_tree);
  m_tree.DeleteAllItems();
  HTREEITEM root = Insert(m_scheme, nullptr);
  for (CZPSystemLayer* category : m_scheme.Categories()) {
    HTREEITEM item = Insert(*category, root);
    for (CZPGroupLayer* group : category->Groups()) Insert(*group, item);
  }
  m_tree.SelectItem(root);
}

CZPLayerObject* layers::SchemeTree::Current() const {
  const UiTreeItem* item = m_tree.GetSelectedItem();
  return item ? static_cast<CZPLayerObject*>(item->data) : nullptr;
}

CZPGroupLayer* layers::SchemeTree::Group() const {
  return dynamic_cast<CZPGroupLayer*>(Current());
}

std::vector<CZPLayer*> layers::SchemeTree::Layers() const {
  std::vector<CZPLayer*> all;
  if (const CZPGroupLayer* group = Group())
    Append(*group, all);
  else if (const auto* category = dynamic_cast<const CZPSystemLayer*>(Current()))
    Append(*category, all);
  else
    for (const CZPSystemLayer* each : m_scheme.Categories()) Append(*each, all);
  return all;
}

// A name can be asked for at nodes below which nothing is then made, as users know it. Deleting asks first
// and looks at the permission afterwards.
std::vector<UiMenuItem> layers::SchemeTree::MenuItems() const {
  const CZPLayerObject* node = Current();
  if (!node) return {};
  std::vector<UiMenuItem> items{{newCategory, L"新建分类"}, {newGroup, L"新建分组"}};
  if (node != &m_scheme) items.push_back({deleteNode, Group() ? L"删除分组" : L"删除分类"});
  items.push_back({rename, L"重命名", node->IsAllowModify()});
  return items;
}

void layers::SchemeTree::Obey(int command) {
  if (!Current()) return;
  if (command == newCategory) NewCategory();
  if (command == newGroup) NewGroup();
  if (command == deleteNode) Delete();
  if (command == rename) Rename();
}

// Giving the question up still makes a category, under the name of the selected node, other than with groups.
// Both are meant to be so.
void layers::SchemeTree::NewCategory() {
  const auto name = AskName(L"新建分类", L"", &m_dialog);
  if (Group()) return;
  auto category = std::make_unique<CZPSystemLayer>();
  category->SetName(name.value_or(Current()->GetName()));
  category->SetAllowModify(true);
  if (!m_scheme.Add(category.get())) return;
  Insert(*category.release(), m_tree.GetRootItem());
}

void layers::SchemeTree::NewGroup() {
  const auto name = AskName(L"新建分组", L"", &m_dialog);
  if (!name) return;
  HTREEITEM item = Group() ? m_tree.GetParentItem(m_tree.GetSelectedItem()) : m_tree.GetSelectedItem();
  auto* category = dynamic_cast<CZPSystemLayer*>(static_cast<CZPLayerObject*>(item->data));
  if (!category) return;
  auto group = std::make_unique<CZPGroupLayer>();
  group->SetName(*name);
  group->SetAllowModify(true);
  if (!category->Add(group.get())) return;
  Insert(*group.release(), item);
}

void layers::SchemeTree::Delete() {
  HTREEITEM item = m_tree.GetSelectedItem();
  CZPLayerObject* node = Current();
  if (node == &m_scheme) return;
  CString question;
  question.Format(L"删除不可恢复，确定要删除[%s]吗？", node->GetName());
  if (!notice::Confirm(question) || !node->IsAllowModify()) return;
  HTREEITEM above = m_tree.GetParentItem(item);
  if (auto* category = dynamic_cast<CZPSystemLayer*>(node))
    m_scheme.Remove(category);
  else if (auto* owner = dynamic_cast<CZPSystemLayer*>(node->GetParent()))
    owner->Remove(static_cast<CZPGroupLayer*>(node));
  m_tree.DeleteItem(item);
  m_tree.SelectItem(above);
  Selected();
}

void layers::SchemeTree::Rename() {
  CZPLayerObject* node = Current();
  if (!node->IsAllowModify()) return;
  const auto name = AskName(L"重命名", node->GetName(), &m_dialog);
  if (!name) return;
  node->SetName(*name);
  m_tree.SetItemText(m_tree.GetSelectedItem(), *name);
}
