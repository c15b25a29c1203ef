#include "host/qt/dialogs/TableModel.h"

#include "host/qt/QtText.h"
#include "host/qt/dialogs/PictureFile.h"
#include "host/qt/dialogs/TableColours.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>

namespace desktop {
namespace {

QColor ColorOf(COLORREF color) {
  return {static_cast<int>(GetRValue(color)), static_cast<int>(GetGValue(color)),
          static_cast<int>(GetBValue(color))};
}

// A cell whose text is of the colour that it stands on has the colour itself to show, selected or not.
bool showsColour(const UiCell& cell) {
  return cell.background && cell.foreground == cell.background;
}

} // namespace

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_rows;
}

int TableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : m_columns;
}

QVariant TableModel::picture(const UiCell& cell, int height) const {
  const auto& images = m_table.Images();
  const bool hasImage = cell.image >= 0 && static_cast<std::size_t>(cell.image) < images.size();
  if (cell.picture.IsEmpty() && !hasImage) return {};
  const CString& file = cell.picture.IsEmpty() ? images[static_cast<std::size_t>(cell.image)] : cell.picture;
  const QString key = cell.picture.IsEmpty() ? QString::number(cell.image) : ToQt(file);
  auto found = m_pictures.find(key);
  constexpr int width = 240;
  if (found == m_pictures.end())
    found = m_pictures.insert(
        key, ReadPicture(file, {width, height > 0 ? height : 20}, qGuiApp->devicePixelRatio()));
  return found->isNull() ? QVariant() : QVariant(*found);
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  const int row = index.row();
  const int column = index.column();
  if (row >= m_table.GetRowCount() || column >= m_table.GetColumnCount()) return {};
  const UiCell& cell = m_table.Cell(row, column);
  const UiRow& whole = m_table.Row(row);
  switch (role) {
  case Qt::DisplayRole:
    return Shown(cell.text);
  case Qt::DecorationRole:
    return picture(cell, whole.height);
  case Qt::TextAlignmentRole:
    return whole.fixed || cell.spanColumns > 1 ? int(Qt::AlignCenter) : int(Qt::AlignLeft | Qt::AlignVCenter);
  case Qt::FontRole: {
    if (!whole.fixed) return {};
    QFont font;
    font.setBold(true);
    return font;
  }
  case Qt::ForegroundRole:
    if (cell.foreground) return QBrush(ColorOf(*cell.foreground));
    return QBrush(Qt::black);
  case Qt::BackgroundRole: {
    if (whole.fixed) return QBrush(kHeadingColour);
    const bool focus = row == m_table.GetFocusRow() && column == m_table.GetFocusColumn();
    if (focus && !m_table.SelectsRows()) return QBrush(kFocusColour);
    if (showsColour(cell)) return QBrush(ColorOf(*cell.background));
    if (m_table.IsRowSelected(row)) {
      if (m_table.SelectsRows()) return QBrush(kFocusColour);
      if (!cell.background) return QBrush(kSelectedColour);
    }
    if (cell.background) return QBrush(ColorOf(*cell.background));
    if (m_table.IsEditable() && !m_table.CanEdit(row, column) && !m_table.CanPress(row, column))
      return QBrush(kReadOnlyColour);
    return {};
  }
  case Qt::ToolTipRole:
    return Shown(cell.text.IsEmpty() ? m_table.ImageName(cell.image) : cell.text).toHtmlEscaped();
  default:
    return {};
  }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_table.GetColumnCount())
    return Shown(m_table.Column(section).title);
  return {};
}

void TableModel::reset() {
  if (m_images != m_table.Images()) {
    m_images = m_table.Images();
    m_pictures.clear();
  }
  if (m_rows != m_table.GetRowCount() || m_columns != m_table.GetColumnCount()) {
    beginResetModel();
    m_rows = m_table.GetRowCount();
    m_columns = m_table.GetColumnCount();
    endResetModel();
  } else {
    allChanged();
  }
}

void TableModel::rowChanged(int row) {
  if (row >= 0 && row < m_rows && m_columns > 0) Q_EMIT dataChanged(index(row, 0), index(row, m_columns - 1));
}

void TableModel::allChanged() {
  if (m_rows == 0 || m_columns == 0) return;
  Q_EMIT dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_columns - 1);
}

} // namespace desktop
