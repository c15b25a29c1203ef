// The widget of a table: hands over clicks and keys, and shows the editor of the cell that stands open.
#pragma once

#include "host/qt/dialogs/ColumnWidths.h"
#include "host/ui/CTableWnd.h"

#include <QTableView>

#include <functional>

class QComboBox;
class QLineEdit;

namespace desktop {

class TableHeading;
class TableModel;

class TableWidget : public QTableView {
 public:
  // Widths that the user gives columns are kept in the settings, if any.
  TableWidget(CTableWnd& table, QSettings* settings);
  using Event = std::function<UiOutcome()>;
  // Runs an event of the user.
  std::function<void(const Event&)> obey;

  void follow(const UiChange& change);
  // The editor of the open cell; null where none is.
  QWidget* editor() const { return m_editor; }
  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {} // nothing is dragged
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void updateGeometries() override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPoint cellAt(const QPoint& at) const; // x the column, y the row; -1 for none
  void layOut();
  void layOutRow(int row);
  // Columns have the widths that the user gave them, or share what is left over.
  void widenColumns();
  void keepWidths();
  int widthOf(int column) const;
  void followEdit();
  void openEditor();
  void placeEditor();
  void dropEditor();
  bool editorKey(QKeyEvent* event);
  void moveFocus(int rows, int columns);
  void editNext(int step);

  CTableWnd& m_table;
  TableModel* m_model;
  TableHeading* m_heading;
  QWidget* m_editor = nullptr;
  QLineEdit* m_line = nullptr; // of the editor; null for a list without free text
  QComboBox* m_combo = nullptr;
  int m_editRow = -1;
  int m_editColumn = -1;
  QPoint m_pressed{-1, -1}; // the cell that the button went down on
  ColumnWidths m_widths;
  bool m_filling = false;
  bool m_layingOut = false; // widths that change meanwhile are not the user's
};

} // namespace desktop
