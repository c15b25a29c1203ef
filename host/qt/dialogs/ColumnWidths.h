// The widths that the user gave the columns of a table. Those of a table with a state name are kept from one
// opening of its window to the next; others last as long as the window.
#pragma once

#include <QList>

class CTableWnd;
class QSettings;

namespace desktop {

class ColumnWidths {
 public:
  // Without settings nothing is kept beyond the window.
  ColumnWidths(const CTableWnd& table, QSettings* settings);

  // One for each column, 0 for a hidden one; empty where the user gave none, or the columns are others by
  // now.
  QList<int> Given() const;
  void Keep(const QList<int>& widths);

 private:
  const CTableWnd& m_table;
  QSettings* m_settings;
  QList<int> m_widths;
};

} // namespace desktop
