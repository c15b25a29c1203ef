// Lists of named values in groups: each value has a field of its kind beside its name.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/FieldWatch.h"
#include "host/ui/CPropTree.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <vector>

namespace desktop {
namespace {

using Kind = CPropTreeItem::Kind;
constexpr int kRowHeight = 26;

class PropTreeView : public ControlView {
 public:
  PropTreeView(CPropTree& control, FormContext& context)
      : ControlView(control, context), m_tree(control), m_whole(new QWidget), m_list(new QTreeWidget),
        m_info(new QLabel) {
    m_list->setColumnCount(2);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(true);
    m_list->setIndentation(16);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->header()->setStretchLastSection(true);
    m_list->setMinimumSize(280, 160);
    m_list->setFocusPolicy(Qt::ClickFocus);
    m_info->setTextFormat(Qt::PlainText);
    m_info->setWordWrap(true);
    m_info->setMinimumHeight(m_info->fontMetrics().lineSpacing() * 2 + 4);
    m_info->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* layout = new QBoxLayout(QBoxLayout::TopToBottom, m_whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_info);
    setWidget(m_whole);
    QObject::connect(m_list, &QTreeWidget::currentItemChanged, [this](QTreeWidgetItem* shown) {
      if (const int item = NumberOf(shown); item >= 0) obey([this, item] { return m_tree.UserSelect(item); });
    });
    QObject::connect(m_list, &QTreeWidget::itemChanged, [this](QTreeWidgetItem* shown) {
      const int item = NumberOf(shown);
      const bool ticked = shown->checkState(0) == Qt::Checked;
      if (!isSyncing() && item >= 0 && m_tree.Item(item).hasTick && m_tree.Item(item).ticked != ticked)
        obey([this, item, ticked] { return m_tree.UserTick(item, ticked); });
    });
  }
  void focus() override { m_list->setFocus(Qt::OtherFocusReason); }

 private:
  static int NumberOf(const QTreeWidgetItem* shown) {
    return shown && shown->parent() ? shown->data(0, Qt::UserRole).toInt() : -1;
  }
  // What an item's field is made for: another one needs another field.
  struct Form {
    Kind kind;
    std::vector<CString> choices;
    bool operator==(const Form&) const = default;
  };
  static Form FormOf(const CPropTreeItem& item) { return {item.kind, item.choices}; }

  // What is told about an item shows as soon as the user is in its field.
  void select(int item) {
    if (item < m_tree.GetItemCount() && m_tree.GetCurSel() != item)
      obey([this, item] { return m_tree.UserSelect(item); });
  }
  void choose(int item, const CString& text) {
    obey([this, item, text] { return m_tree.UserSetText(item, text); });
  }
  QWidget* makeField(int number) {
    const CPropTreeItem& item = m_tree.Item(number);
    const QString name = ToQt(item.label);
    if (item.kind == Kind::choice || item.kind == Kind::combo) {
      auto* combo = new QComboBox;
      combo->setEditable(item.kind == Kind::combo);
      combo->setInsertPolicy(QComboBox::NoInsert);
      for (const CString& choice : item.choices) combo->addItem(Shown(choice));
      combo->setObjectName(name);
      QObject::connect(combo, &QComboBox::activated, [this, number](int index) {
        choose(number, m_tree.Item(number).choices[static_cast<std::size_t>(index)]);
      });
      if (combo->lineEdit()) finishLine(*combo->lineEdit(), number);
      return combo;
    }
    if (item.kind == Kind::button) {
      auto* both = new QWidget;
      auto* layout = new QBoxLayout(QBoxLayout::LeftToRight, both);
      layout->setContentsMargins(4, 0, 0, 0);
      layout->setSpacing(2);
      auto* text = new QLabel;
      text->setObjectName(QStringLiteral("text"));
      text->setTextFormat(Qt::PlainText);
      auto* button = new QPushButton(QStringLiteral("…"));
      button->setObjectName(name);
      button->setAutoDefault(false);
      button->setFixedWidth(28);
      layout->addWidget(text, 1);
      layout->addWidget(button);
      QObject::connect(button, &QPushButton::clicked,
                       [this, number] { obey([this, number] { return m_tree.UserPress(number); }); });
      return both;
    }
    auto* line = new QLineEdit;
    line->setObjectName(name);
    finishLine(*line, number);
    return line;
  }
  // A value counts when the user is done with it: Enter, or going on to something else. Escape gives it up.
  // Neither key then reaches the dialog.
  void finishLine(QLineEdit& line, int number) {
    const auto shown = [this, number] {
      return number < m_tree.GetItemCount() ? ToQt(m_tree.Item(number).text) : QString();
    };
    const auto finish = [this, &line, number, shown] {
      if (number < m_tree.GetItemCount() && shown() != line.text()) choose(number, FromQt(line.text()));
    };
    OnLeave(line, finish);
    OnEditKeys(line, finish, [&line, shown] {
      if (line.text() == shown()) return false;
      line.setText(shown());
      return true;
    });
  }

  void build() {
    m_list->clear();
    m_forms.clear();
    m_fields.clear();
    int number = 0;
    for (const CPropTreeGroup& group : m_tree.Groups()) {
      auto* top = new QTreeWidgetItem(m_list, {Shown(group.title)});
      QFont bold = m_list->font();
      bold.setBold(true);
      top->setFont(0, bold);
      top->setFlags(Qt::ItemIsEnabled);
      top->setSizeHint(0, {0, kRowHeight});
      top->setBackground(0, QColor(233, 236, 240));
      top->setBackground(1, QColor(233, 236, 240));
      for (const CPropTreeItem& item : group.items) {
        auto* shown = new QTreeWidgetItem(top);
        shown->setData(0, Qt::UserRole, number);
        QWidget* field = makeField(number);
        OnEnter(*field, [this, number] { select(number); });
        field->setMinimumHeight(kRowHeight);
        m_list->setItemWidget(shown, 1, field);
        m_forms.push_back(FormOf(item));
        m_fields.push_back({shown, field});
        ++number;
      }
      top->setExpanded(group.expanded);
    }
    int width = 120;
    for (const auto& [shown, field] : m_fields)
      width = std::max(
          width, m_list->fontMetrics().horizontalAdvance(Shown(m_tree.Item(NumberOf(shown)).label)) + 56);
    m_list->setColumnWidth(0, std::min(width, 260));
  }
  bool isBuilt() const {
    if (m_list->topLevelItemCount() != static_cast<int>(m_tree.Groups().size()) ||
        m_forms.size() != static_cast<std::size_t>(m_tree.GetItemCount()))
      return false;
    for (int i = 0; i < m_tree.GetItemCount(); ++i)
      if (!(m_forms[static_cast<std::size_t>(i)] == FormOf(m_tree.Item(i)))) return false;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
      const auto& group = m_tree.Groups()[static_cast<std::size_t>(i)];
      if (m_list->topLevelItem(i)->text(0) != Shown(group.title) ||
          m_list->topLevelItem(i)->childCount() != static_cast<int>(group.items.size()))
        return false;
    }
    return true;
  }
  void fill(int number) {
    const CPropTreeItem& item = m_tree.Item(number);
    const auto& [shown, field] = m_fields[static_cast<std::size_t>(number)];
    shown->setText(0, Shown(item.label));
    shown->setToolTip(0, Shown(item.info).toHtmlEscaped());
    if (item.hasTick) shown->setCheckState(0, item.ticked ? Qt::Checked : Qt::Unchecked);
    if (auto* combo = dynamic_cast<QComboBox*>(field)) {
      combo->setEnabled(!item.readOnly);
      combo->setCurrentIndex(item.ChoiceIndex());
      combo->setPlaceholderText(Shown(item.text)); // seen where the text is none of the choices
      if (combo->isEditable()) combo->setEditText(ToQt(item.text));
    } else if (auto* line = dynamic_cast<QLineEdit*>(field)) {
      line->setReadOnly(item.readOnly);
      line->setStyleSheet(item.readOnly ? QStringLiteral("color: #707070;") : QString());
      if (line->text() != ToQt(item.text)) line->setText(ToQt(item.text));
    } else {
      field->findChild<QLabel*>(QStringLiteral("text"))->setText(Shown(item.text));
      field->findChild<QPushButton*>()->setEnabled(!item.readOnly);
    }
  }
  void sync(const UiChange& change) override {
    if (change.kind == UiChange::Kind::look) return;
    if (!isBuilt()) build();
    for (int i = 0; i < m_tree.GetItemCount(); ++i)
      if (change.kind != UiChange::Kind::row || change.row == i) fill(i);
    const int selected = m_tree.GetCurSel();
    m_list->setCurrentItem(selected < 0 ? nullptr : m_fields[static_cast<std::size_t>(selected)].shown);
    const auto told = [this] {
      for (int i = 0; i < m_tree.GetItemCount(); ++i)
        if (!m_tree.Item(i).info.IsEmpty()) return true;
      return false;
    };
    m_info->setVisible(told());
    m_info->setText(selected < 0 ? QString() : Shown(m_tree.Item(selected).info));
  }

  struct Field {
    QTreeWidgetItem* shown;
    QWidget* field;
  };
  CPropTree& m_tree;
  QWidget* m_whole;
  QTreeWidget* m_list;
  QLabel* m_info;
  std::vector<Form> m_forms;
  std::vector<Field> m_fields;
};

} // namespace

ControlViewPtr MakePropTreeView(CPropTree& control, FormContext& context) {
  return std::make_unique<PropTreeView>(control, context);
}

} // namespace desktop
