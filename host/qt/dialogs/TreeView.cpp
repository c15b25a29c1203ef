// Trees, with and without ticks.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ContextMenu.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/ui/CMutiTreeCtrl.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace desktop {
namespace {

HTREEITEM ItemOf(const QTreeWidgetItem* shown) {
  return shown ? static_cast<HTREEITEM>(shown->data(0, Qt::UserRole).value<void*>()) : nullptr;
}

class TreeView : public ControlView {
 public:
  TreeView(CTreeCtrl& control, FormContext& context)
      : ControlView(control, context), m_tree(control), m_ticks(dynamic_cast<CMutiTreeCtrl*>(&control)),
        m_shown(new QTreeWidget) {
    m_shown->header()->hide();
    m_shown->setMinimumWidth(160);
    m_shown->setExpandsOnDoubleClick(!control.Menu.Exists());
    m_shown->setContextMenuPolicy(Qt::CustomContextMenu);
    setWidget(m_shown);
    QObject::connect(m_shown, &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* item) {
      if (item) obey([this, item] { return m_tree.UserSelect(ItemOf(item)); });
    });
    QObject::connect(m_shown, &QTreeWidget::itemDoubleClicked, [this](QTreeWidgetItem* item) {
      obey([this, item] { return m_tree.UserDoubleClick(ItemOf(item)); });
    });
    QObject::connect(m_shown, &QTreeWidget::itemExpanded, [this](QTreeWidgetItem* item) {
      obey([this, item] { return m_tree.UserExpand(ItemOf(item), true); });
    });
    QObject::connect(m_shown, &QTreeWidget::itemCollapsed, [this](QTreeWidgetItem* item) {
      obey([this, item] { return m_tree.UserExpand(ItemOf(item), false); });
    });
    QObject::connect(m_shown, &QTreeWidget::itemChanged, [this](QTreeWidgetItem* item) {
      const bool checked = item->checkState(0) == Qt::Checked;
      HTREEITEM changed = ItemOf(item);
      if (m_ticks && !isSyncing() && changed && changed->checked != checked)
        obey([this, changed, checked] { return m_ticks->UserCheck(changed, checked); });
    });
    QObject::connect(m_shown, &QTreeWidget::customContextMenuRequested, [this](const QPoint& at) {
      obey([this, at] {
        UiOutcome outcome = m_tree.UserOpenMenu(ItemOf(m_shown->itemAt(at)));
        if (!outcome) return m_tree.Menu.Exists() ? outcome : UiOutcome();
        return ShowContextMenu(m_tree.Menu, m_shown->viewport()->mapToGlobal(at), m_shown);
      });
    });
  }

 private:
  QTreeWidgetItem* add(const UiTreeItem& item) {
    auto* shown = new QTreeWidgetItem;
    for (const auto& child : item.children) shown->addChild(add(*child));
    mark(*shown, item);
    return shown;
  }
  void mark(QTreeWidgetItem& shown, const UiTreeItem& item) const {
    shown.setText(0, Shown(item.text));
    shown.setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void*>(const_cast<UiTreeItem*>(&item))));
    if (m_tree.HasTicks()) shown.setCheckState(0, item.checked ? Qt::Checked : Qt::Unchecked);
  }
  // The same items as before, perhaps with other texts: the widget keeps where it is scrolled to.
  bool matches(const QTreeWidgetItem& shown, const UiTreeItem& item) const {
    if (ItemOf(&shown) != &item || shown.childCount() != static_cast<int>(item.children.size())) return false;
    for (int i = 0; i < shown.childCount(); ++i)
      if (!matches(*shown.child(i), *item.children[static_cast<std::size_t>(i)])) return false;
    return true;
  }
  void fill() {
    const auto& top = m_tree.TopItems();
    bool same = m_shown->topLevelItemCount() == static_cast<int>(top.size());
    for (int i = 0; same && i < m_shown->topLevelItemCount(); ++i)
      same = matches(*m_shown->topLevelItem(i), *top[static_cast<std::size_t>(i)]);
    if (!same) {
      m_shown->clear();
      for (const auto& item : top) m_shown->addTopLevelItem(add(*item));
    }
  }
  void follow(QTreeWidgetItem& shown) {
    const HTREEITEM item = ItemOf(&shown);
    mark(shown, *item);
    shown.setExpanded(item->expanded);
    if (item == m_tree.GetSelectedItem()) m_shown->setCurrentItem(&shown);
    for (int i = 0; i < shown.childCount(); ++i) follow(*shown.child(i));
  }
  void sync(const UiChange& change) override {
    if (change.kind == UiChange::Kind::look) return;
    fill();
    if (!m_tree.GetSelectedItem()) m_shown->setCurrentItem(nullptr);
    for (int i = 0; i < m_shown->topLevelItemCount(); ++i) follow(*m_shown->topLevelItem(i));
  }

  CTreeCtrl& m_tree;
  CMutiTreeCtrl* m_ticks;
  QTreeWidget* m_shown;
};

} // namespace

ControlViewPtr MakeTreeView(CTreeCtrl& control, FormContext& context) {
  return std::make_unique<TreeView>(control, context);
}

} // namespace desktop
