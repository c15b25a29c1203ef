#include "host/qt/dialogs/TableWidget.h"

#include "host/qt/dialogs/ContextMenu.h"
#include "host/qt/dialogs/TableHeading.h"
#include "host/qt/dialogs/TableModel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScopeGuard>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace desktop {
namespace {

constexpr int kRowPadding = 10;
constexpr int kMostHint = 420; // pixels of height that a table asks for

// Which cell is in focus or selected the table knows; what Qt thinks of it would only mislead.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~(QStyle::State_HasFocus | QStyle::State_Selected | QStyle::State_MouseOver);
  }
};

} // namespace

TableWidget::TableWidget(CTableWnd& table, QSettings* settings)
    : m_table(table), m_model(new TableModel(table, this)), m_heading(new TableHeading(table, this)),
      m_widths(table, settings) {
  setHorizontalHeader(m_heading);
  setModel(m_model);
  setItemDelegate(new CellDelegate(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(NoSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
  setHorizontalScrollMode(ScrollPerPixel);
  connect(m_heading, &QHeaderView::sectionResized, this, [this] {
    if (!m_layingOut) keepWidths();
  });
}

int TableWidget::widthOf(int column) const {
  const int width = m_table.Column(column).width;
  return width <= 0 ? 0 : std::max(width, m_heading->widthFor(column));
}

void TableWidget::layOutRow(int row) {
  const bool inHeading = row < m_heading->rows();
  setRowHidden(row, inHeading);
  if (inHeading) return;
  const int height = m_table.Row(row).height;
  setRowHeight(row, height > 0 ? height : verticalHeader()->defaultSectionSize());
  for (int column = 0; column < m_table.GetColumnCount(); ++column) {
    const UiCell& cell = m_table.Cell(row, column);
    if (cell.spanRows > 1 || cell.spanColumns > 1) setSpan(row, column, cell.spanRows, cell.spanColumns);
  }
}

void TableWidget::layOut() {
  clearSpans();
  m_heading->follow();
  for (int column = 0; column < m_table.GetColumnCount(); ++column)
    setColumnHidden(column, widthOf(column) == 0);
  widenColumns();
  for (int row = 0; row < m_table.GetRowCount(); ++row) layOutRow(row);
}

void TableWidget::keepWidths() {
  QList<int> widths;
  for (int column = 0; column < m_table.GetColumnCount(); ++column)
    widths.append(isColumnHidden(column) ? 0 : columnWidth(column));
  m_widths.Keep(widths);
}

void TableWidget::widenColumns() {
  const bool outer = std::exchange(m_layingOut, true);
  const QScopeGuard over([this, outer] { m_layingOut = outer; });
  const int columns = m_model->columnCount();
  const QList<int> given = m_widths.Given();
  for (int column = 0; column < given.size(); ++column)
    if (given[column] > 0) setColumnWidth(column, given[column]);
  if (!given.isEmpty()) return;
  const auto widens = [this](int column) {
    return widthOf(column) > 0 && !m_table.Column(column).keepsWidth;
  };
  int wanted = 0;
  int widening = 0; // how much of it takes part in what is left over
  int last = -1;
  for (int column = 0; column < columns; ++column) {
    wanted += widthOf(column);
    if (widens(column)) widening += widthOf(column);
    if (widens(column)) last = column;
  }
  int left = std::max(viewport()->width() - wanted, 0);
  const int spare = left;
  for (int column = 0; column < columns; ++column) {
    const int width = widthOf(column);
    if (width == 0) continue;
    int more = 0;
    if (widens(column))
      more = column == last ? left : static_cast<int>(static_cast<long>(spare) * width / widening);
    setColumnWidth(column, width + more);
    left -= more;
  }
}

void TableWidget::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) widenColumns();
}

QSize TableWidget::sizeHint() const {
  int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < m_table.GetColumnCount(); ++column) width += widthOf(column);
  int height = 2 * frameWidth() + 4 + m_heading->sizeHint().height();
  for (int row = m_heading->rows(); row < m_table.GetRowCount() && height < kMostHint; ++row)
    height += rowHeight(row);
  return {std::clamp(width, 160, 900), std::clamp(height, 120, kMostHint)};
}

void TableWidget::follow(const UiChange& change) {
  const bool outer = std::exchange(m_layingOut, true);
  const QScopeGuard over([this, outer] { m_layingOut = outer; });
  switch (change.kind) {
  case UiChange::Kind::look:
    setShowGrid(m_table.HasGridLines());
    viewport()->update();
    break;
  case UiChange::Kind::content: {
    const int x = horizontalScrollBar()->value();
    const int y = verticalScrollBar()->value();
    m_model->reset();
    layOut();
    updateGeometry();
    horizontalScrollBar()->setValue(x);
    verticalScrollBar()->setValue(y);
    followEdit();
    break;
  }
  case UiChange::Kind::row:
    if (change.row <= m_heading->rows()) layOut(); // of the heading, or just behind it
    m_model->rowChanged(change.row);
    break;
  case UiChange::Kind::selection:
    m_model->allChanged();
    if (m_table.GetFocusRow() >= 0) scrollTo(m_model->index(m_table.GetFocusRow(), m_table.GetFocusColumn()));
    break;
  case UiChange::Kind::edit:
    followEdit();
    break;
  }
}

QPoint TableWidget::cellAt(const QPoint& at) const {
  const QModelIndex index = indexAt(at);
  return index.isValid() ? QPoint(index.column(), index.row()) : QPoint(-1, -1);
}

void TableWidget::mousePressEvent(QMouseEvent* event) {
  const QPoint cell = cellAt(event->position().toPoint());
  if (cell.y() < 0 || event->button() != Qt::LeftButton) return;
  auto pick = CTableWnd::Pick::only;
  if (event->modifiers() & Qt::ControlModifier) pick = CTableWnd::Pick::toggle;
  if (event->modifiers() & Qt::ShiftModifier) pick = CTableWnd::Pick::extend;
  if (m_table.Row(cell.y()).fixed) return;
  if (pick == CTableWnd::Pick::only && m_table.CanPress(cell.y(), cell.x())) {
    m_pressed = cell;
    return;
  }
  // A second click on the cell in focus opens its edit.
  const bool again = pick == CTableWnd::Pick::only && m_table.GetFocusRow() == cell.y() &&
                     m_table.GetFocusColumn() == cell.x() && m_table.CanEdit(cell.y(), cell.x());
  obey([this, cell, pick, again] {
    UiOutcome outcome = m_table.UserClick(cell.y(), cell.x(), pick);
    if (!outcome || m_table.CurrentEdit() || !m_table.CanEdit(cell.y(), cell.x())) return outcome;
    const bool list = m_table.Cell(cell.y(), cell.x()).choices != nullptr;
    return again || list ? m_table.UserBeginEdit(cell.y(), cell.x()) : outcome;
  });
}

// Like a button: what it opens must not begin while the mouse is still held.
void TableWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint down = std::exchange(m_pressed, {-1, -1});
  if (event->button() != Qt::LeftButton || down.y() < 0 || cellAt(event->position().toPoint()) != down)
    return;
  obey([this, down] { return m_table.UserPress(down.y(), down.x()); });
}

void TableWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPoint cell = cellAt(event->position().toPoint());
  if (cell.y() < 0 || event->button() != Qt::LeftButton || m_table.Row(cell.y()).fixed) return;
  if (m_table.CanPress(cell.y(), cell.x())) { // two clicks in quick succession
    m_pressed = cell;
    return;
  }
  obey([this, cell] {
    UiOutcome outcome = m_table.UserDoubleClick(cell.y(), cell.x());
    if (!outcome || m_table.CurrentEdit() || !m_table.CanEdit(cell.y(), cell.x())) return outcome;
    return m_table.UserBeginEdit(cell.y(), cell.x());
  });
}

void TableWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!m_table.Menu.Exists()) return;
  const QPoint cell = event->reason() == QContextMenuEvent::Keyboard
                          ? QPoint(m_table.GetFocusColumn(), m_table.GetFocusRow())
                          : cellAt(viewport()->mapFromGlobal(event->globalPos()));
  obey([this, cell, at = event->globalPos()] {
    UiOutcome outcome = m_table.UserOpenMenu(cell.y(), std::max(cell.x(), 0));
    return outcome ? ShowContextMenu(m_table.Menu, at, this) : outcome;
  });
}

void TableWidget::moveFocus(int rows, int columns) {
  int row = m_table.GetFocusRow();
  int column = m_table.GetFocusColumn();
  if (row < 0) {
    row = 0;
    column = 0;
    rows = columns = 0;
    while (row < m_table.GetRowCount() && m_table.Row(row).fixed) ++row;
  }
  do row += rows;
  while (rows != 0 && row >= 0 && row < m_table.GetRowCount() && m_table.Row(row).fixed);
  do column += columns;
  while (columns != 0 && column >= 0 && column < m_table.GetColumnCount() && isColumnHidden(column));
  if (row < 0 || row >= m_table.GetRowCount() || column < 0 || column >= m_table.GetColumnCount()) return;
  obey([this, row, column] { return m_table.UserClick(row, column); });
}

void TableWidget::keyPressEvent(QKeyEvent* event) {
  const int row = m_table.GetFocusRow();
  const int column = m_table.GetFocusColumn();
  const bool editable = row >= 0 && m_table.CanEdit(row, column);
  const bool pressable = row >= 0 && m_table.CanPress(row, column);
  const auto begin = [this, row, column] { return m_table.UserBeginEdit(row, column); };
  const auto press = [this, row, column] { return m_table.UserPress(row, column); };
  switch (event->key()) {
  case Qt::Key_Up:
    return moveFocus(-1, 0);
  case Qt::Key_Down:
    return moveFocus(1, 0);
  case Qt::Key_Left:
    return moveFocus(0, -1);
  case Qt::Key_Right:
    return moveFocus(0, 1);
  case Qt::Key_F2:
    if (editable) return obey(begin);
    if (pressable) return obey(press);
    break;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (editable) return obey(begin);
    if (pressable) return obey(press);
    break;
  default:
    break;
  }
  if (pressable && event->key() == Qt::Key_Space) return obey(press);
  const QString typed = event->text();
  const bool prints = !typed.isEmpty() && typed[0].isPrint() &&
                      !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  if (editable && prints) {
    obey(begin);
    if (m_line) {
      m_line->selectAll();
      m_line->insert(typed);
      Q_EMIT m_line->textEdited(m_line->text());
    }
    return;
  }
  event->ignore(); // Enter and Escape are for the dialog
}

void TableWidget::updateGeometries() {
  QTableView::updateGeometries();
  placeEditor();
}

} // namespace desktop
