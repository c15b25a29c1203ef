// A table of the host as Qt sees it. Nothing is copied: every question is asked of the table.
#pragma once

#include "host/ui/CTableWnd.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QPixmap>

namespace desktop {

class TableModel : public QAbstractTableModel {
 public:
  explicit TableModel(CTableWnd& table, QObject* parent) : QAbstractTableModel(parent), m_table(table) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex&) const override { return Qt::ItemIsEnabled; }

  // Rows or columns may have come or gone.
  void reset();
  void rowChanged(int row);
  void allChanged();

 private:
  QVariant picture(const UiCell& cell, int height) const;

  CTableWnd& m_table;
  int m_rows = 0; // as Qt was told last
  int m_columns = 0;
  std::vector<CString> m_images; // those that m_pictures knows by number
  mutable QHash<QString, QPixmap> m_pictures;
};

} // namespace desktop
