#include "host/qt/dialogs/FormView.h"

#include "host/qt/QtText.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/LabelFollow.h"
#include "host/ui/CFormWnd.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

#include <algorithm>

namespace desktop {
namespace {

constexpr int kSpacing = 8;

bool HasLabelBeside(UiKind kind) {
  return kind == UiKind::edit || kind == UiKind::numberEdit || kind == UiKind::comboBox;
}
bool HasLabelAbove(UiKind kind) {
  return kind == UiKind::listBox || kind == UiKind::tree || kind == UiKind::table ||
         kind == UiKind::propTree || kind == UiKind::picture || kind == UiKind::preview;
}
bool IsField(const UiLayout& layout) {
  return layout.kind == UiLayout::Kind::control && layout.control && HasLabelBeside(layout.control->Kind());
}
// A field, or a row that begins with one, such as a field with a button.
bool BeginsWithField(const UiLayout& layout) {
  return IsField(layout) ||
         (layout.kind == UiLayout::Kind::row && !layout.children.empty() && IsField(layout.children.front()));
}
// Takes height that is left over. Within a row, stretching and spaces are about the width.
bool GrowsDown(const UiLayout& layout) {
  switch (layout.kind) {
  case UiLayout::Kind::space:
    return false;
  case UiLayout::Kind::control:
    return layout.control &&
           (HasLabelAbove(layout.control->Kind()) || layout.control->Kind() == UiKind::tabSheet);
  case UiLayout::Kind::row:
    return std::any_of(layout.children.begin(), layout.children.end(), GrowsDown);
  case UiLayout::Kind::column:
  case UiLayout::Kind::group:
    break;
  }
  return std::any_of(layout.children.begin(), layout.children.end(), [](const UiLayout& child) {
    return child.kind == UiLayout::Kind::space || child.stretch > 0 || GrowsDown(child);
  });
}

} // namespace

FormView::FormView(CFormWnd& form, FormContext& context) : m_context(context), m_widget(new QWidget) {
  auto* grid = new QGridLayout(m_widget);
  UiLayout layout = form.Layout();
  if (layout.kind != UiLayout::Kind::column) layout = ui::Column({layout});
  fillColumn(*grid, layout);
  for (const auto& view : m_views) view->show();
}

FormView::~FormView() = default;

// Labels of fields that stand below each other are aligned; everything else spans both columns.
void FormView::fillColumn(QGridLayout& grid, const UiLayout& layout) {
  grid.setHorizontalSpacing(kSpacing);
  grid.setVerticalSpacing(kSpacing);
  grid.setColumnStretch(1, 1);
  int row = 0;
  bool grows = false;
  // Where one is told to take what is left over, the others do not.
  const bool told = std::any_of(layout.children.begin(), layout.children.end(),
                                [](const UiLayout& child) { return child.stretch > 0; });
  for (const UiLayout& child : layout.children) {
    const bool down = child.stretch > 0 || (!told && GrowsDown(child));
    grows = grows || down || child.kind == UiLayout::Kind::space;
    if (child.kind == UiLayout::Kind::space) {
      grid.setRowStretch(row++, std::max(child.stretch, 1));
      continue;
    }
    if (BeginsWithField(child)) {
      QWidget* label = nullptr;
      QWidget* field = IsField(child) ? makeControl(child, &label) : makeRow(child, &label);
      if (label) grid.addWidget(label, row, 0);
      grid.addWidget(field, row, label ? 1 : 0, 1, label ? 1 : 2);
    } else if (QWidget* widget = make(child)) {
      grid.addWidget(widget, row, 0, 1, 2);
    }
    if (down) grid.setRowStretch(row, std::max(child.stretch, 1));
    ++row;
  }
  if (!grows) grid.setRowStretch(row, 1);
}

QWidget* FormView::makeRow(const UiLayout& layout, QWidget** firstLabel) {
  auto* widget = new QWidget;
  if (layout.width > 0) widget->setMinimumWidth(layout.width);
  if (layout.height > 0) widget->setMinimumHeight(layout.height);
  auto& row = *new QBoxLayout(QBoxLayout::LeftToRight, widget);
  row.setContentsMargins(0, 0, 0, 0);
  row.setSpacing(kSpacing);
  for (const UiLayout& child : layout.children) {
    if (child.kind == UiLayout::Kind::space) {
      row.addStretch(std::max(child.stretch, 1));
      continue;
    }
    if (IsField(child)) {
      QWidget* label = nullptr;
      QWidget* field = makeControl(child, &label);
      if (firstLabel && &child == &layout.children.front())
        *firstLabel = label;
      else if (label)
        row.addWidget(label);
      row.addWidget(field, child.stretch);
    } else if (QWidget* item = make(child)) {
      const bool low =
          child.kind == UiLayout::Kind::control && child.control && child.control->Kind() == UiKind::button;
      row.addWidget(item, child.stretch, low ? Qt::AlignVCenter : Qt::Alignment());
    }
  }
  return widget;
}

QWidget* FormView::make(const UiLayout& layout) {
  QWidget* widget = nullptr;
  switch (layout.kind) {
  case UiLayout::Kind::space:
    return nullptr;
  case UiLayout::Kind::control: {
    QWidget* label = nullptr;
    widget = makeControl(layout, &label);
    return widget && label ? above(label, widget) : widget;
  }
  case UiLayout::Kind::row:
    return makeRow(layout, nullptr);
  case UiLayout::Kind::column: {
    widget = new QWidget;
    auto* grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    fillColumn(*grid, layout);
    break;
  }
  case UiLayout::Kind::group: {
    widget = new QGroupBox(Plain(layout.title));
    fillColumn(*new QGridLayout(widget), layout);
    break;
  }
  }
  if (layout.width > 0) widget->setMinimumWidth(layout.width);
  if (layout.height > 0) widget->setMinimumHeight(layout.height);
  return widget;
}

QWidget* FormView::makeControl(const UiLayout& layout, QWidget** label) {
  if (!layout.control) return nullptr;
  auto view = MakeView(*layout.control, m_context);
  if (!view) return nullptr;
  QWidget* widget = view->widget();
  if (layout.width > 0) {
    widget->setMinimumWidth(layout.width);
    const UiKind sized = layout.control->Kind();
    if (layout.stretch == 0 && (HasLabelBeside(sized) || sized == UiKind::button))
      widget->setMaximumWidth(layout.width);
  }
  if (layout.height > 0) widget->setMinimumHeight(layout.height);
  const UiKind kind = layout.control->Kind();
  const bool captioned = layout.control->IsCaptionShown() && !layout.control->GetCaption().IsEmpty();
  if (captioned && (HasLabelBeside(kind) || HasLabelAbove(kind))) {
    *label = new LabelFollow(*layout.control);
    static_cast<QLabel*>(*label)->setBuddy(widget);
  }
  m_views.push_back(std::move(view));
  return widget;
}

QWidget* FormView::above(QWidget* label, QWidget* widget) const {
  auto* both = new QWidget;
  auto* column = new QBoxLayout(QBoxLayout::TopToBottom, both);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kSpacing / 2);
  column->addWidget(label);
  column->addWidget(widget, 1);
  return both;
}

} // namespace desktop
