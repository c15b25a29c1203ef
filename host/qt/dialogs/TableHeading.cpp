#include "host/qt/dialogs/TableHeading.h"

#include "host/qt/QtText.h"
#include "host/qt/dialogs/TableColours.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace desktop {
namespace {

constexpr int kPadding = 10; // of a row's height, and on both sides of a text together

// The first cell of the merged area that a cell lies in, or the cell itself.
QPoint OwnerOf(const CTableWnd& table, int row, int column) {
  for (int top = row; top >= 0; --top)
    for (int left = column; left >= 0; --left) {
      const UiCell& cell = table.Cell(top, left);
      if (cell.spanRows > row - top && cell.spanColumns > column - left) return {left, top};
    }
  return {column, row};
}

} // namespace

TableHeading::TableHeading(CTableWnd& table, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), m_table(table) {
  setHighlightSections(false);
  setMinimumSectionSize(kPadding); // narrow columns are meant to be so: with another width they would not fit
}

int TableHeading::rows() const {
  int count = 0;
  while (count < m_table.GetRowCount() && m_table.Row(count).fixed) ++count;
  return count;
}

void TableHeading::follow() {
  setVisible(m_table.ShowsColumnTitles() || rows() > 0);
  Q_EMIT geometriesChanged();
  viewport()->update();
}

QFont TableHeading::headingFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

int TableHeading::titleHeight() const {
  return m_table.ShowsColumnTitles() ? fontMetrics().height() + kPadding : 0;
}

int TableHeading::rowHeight(int row) const {
  const int height = m_table.Row(row).height;
  return height > 0 ? height : fontMetrics().height() + kPadding;
}

int TableHeading::rowTop(int row) const {
  int top = titleHeight();
  for (int above = 0; above < row; ++above) top += rowHeight(above);
  return top;
}

int TableHeading::widthFor(int column) const {
  const QFontMetrics metrics(headingFont());
  int width = 0;
  if (m_table.ShowsColumnTitles()) width = metrics.horizontalAdvance(Shown(m_table.Column(column).title));
  for (int row = 0; row < rows(); ++row)
    if (const UiCell& cell = m_table.Cell(row, column); cell.spanColumns == 1)
      width = std::max(width, metrics.horizontalAdvance(Shown(cell.text)));
  return width == 0 ? 0 : width + kPadding;
}

QSize TableHeading::sizeHint() const {
  return {QHeaderView::sizeHint().width(), rowTop(rows())};
}

void TableHeading::paintCell(QPainter& painter, const QRect& cell, const CString& text,
                             const QPixmap& picture) const {
  painter.fillRect(cell, kHeadingColour);
  const QSizeF size = picture.deviceIndependentSize();
  const QRectF place(cell);
  if (!picture.isNull())
    painter.drawPixmap(place.center() - QPointF(size.width() / 2, size.height() / 2), picture);
  painter.setPen(kGridColour);
  painter.drawLine(cell.topRight(), cell.bottomRight());
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  painter.setPen(palette().color(QPalette::Text));
  painter.setFont(headingFont());
  const QString shown =
      QFontMetrics(headingFont()).elidedText(Shown(text), Qt::ElideRight, cell.width() - kPadding / 2);
  painter.drawText(cell, Qt::AlignCenter | Qt::TextSingleLine, shown);
}

// Of a merged cell each section paints its own part.
void TableHeading::paintRow(QPainter& painter, int row, int column) const {
  const QPoint owner = OwnerOf(m_table, row, column);
  const UiCell& cell = m_table.Cell(owner.y(), owner.x());
  int width = 0;
  for (int i = 0; i < std::max(cell.spanColumns, 1); ++i) width += sectionSize(owner.x() + i);
  const int last = std::min(owner.y() + std::max(cell.spanRows, 1), rows());
  const QRect whole(sectionViewportPosition(owner.x()), rowTop(owner.y()), width,
                    rowTop(last) - rowTop(owner.y()));
  const QVariant picture = model()->index(owner.y(), owner.x()).data(Qt::DecorationRole);
  paintCell(painter, whole, cell.text, picture.value<QPixmap>());
}

void TableHeading::paintSection(QPainter* painter, const QRect& section, int column) const {
  painter->setClipRect(section);
  if (titleHeight() > 0)
    paintCell(*painter, {section.left(), 0, section.width(), titleHeight()}, m_table.Column(column).title);
  for (int row = 0; row < rows(); ++row) paintRow(*painter, row, column);
}

} // namespace desktop
