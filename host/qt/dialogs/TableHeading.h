// The heading of a table, which stays while the rows below it scroll: the column titles, and the fixed rows
// that the table begins with, merged cells among them.
#pragma once

#include "host/ui/CTableWnd.h"

#include <QHeaderView>

namespace desktop {

class TableHeading : public QHeaderView {
 public:
  TableHeading(CTableWnd& table, QWidget* parent);

  // The fixed rows that stand here and not among the other rows.
  int rows() const;
  // They may be others now.
  void follow();
  // What a column needs for its heading to be read in full; cells merged over several columns are left out.
  int widthFor(int column) const;
  QSize sizeHint() const override;

 protected:
  void paintSection(QPainter* painter, const QRect& section, int column) const override;

 private:
  int titleHeight() const;
  int rowHeight(int row) const;
  int rowTop(int row) const;
  QFont headingFont() const;
  void paintCell(QPainter& painter, const QRect& cell, const CString& text,
                 const QPixmap& picture = {}) const;
  void paintRow(QPainter& painter, int row, int column) const;

  CTableWnd& m_table;
};

} // namespace desktop
