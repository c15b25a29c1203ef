// The editor of the open cell of a table widget.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/TableModel.h"
#include "host/qt/dialogs/TableWidget.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <utility>

namespace desktop {

void TableWidget::followEdit() {
  const auto& edit = m_table.CurrentEdit();
  if (!edit) {
    dropEditor();
    return;
  }
  if (!m_editor || edit->row != m_editRow || edit->column != m_editColumn) {
    dropEditor();
    openEditor();
  }
  m_filling = true;
  const QString text = ToQt(edit->text);
  if (m_line && m_line->text() != text) m_line->setText(text);
  if (m_combo && !m_line) m_combo->setCurrentIndex(m_combo->findText(text));
  m_filling = false;
}

void TableWidget::openEditor() {
  const auto edit = *m_table.CurrentEdit();
  const UiCell& cell = m_table.Cell(edit.row, edit.column);
  m_editRow = edit.row;
  m_editColumn = edit.column;
  const auto type = [this](const QString& text) {
    if (!m_filling) obey([this, text = FromQt(text)] { return m_table.UserTypeEdit(text); });
  };
  if (cell.choices) {
    m_combo = new QComboBox(viewport());
    m_combo->setEditable(cell.freeText);
    m_combo->setInsertPolicy(QComboBox::NoInsert);
    for (const CString& choice : *cell.choices) m_combo->addItem(Shown(choice));
    m_line = m_combo->lineEdit();
    m_editor = m_combo;
    connect(m_combo, &QComboBox::activated, this, [this](int index) {
      const auto& open = m_table.CurrentEdit();
      if (m_filling || !open) return;
      const auto& choices = m_table.Cell(open->row, open->column).choices;
      if (!choices || static_cast<std::size_t>(index) >= choices->size()) return;
      obey(
          [this, row = open->row, column = open->column, text = (*choices)[static_cast<std::size_t>(index)]] {
            return m_table.UserChoose(row, column, text);
          });
    });
  } else {
    m_line = new QLineEdit(viewport());
    m_line->setTextMargins(1, 0, 1, 0);
    m_editor = m_line;
  }
  if (m_line) {
    m_line->setText(ToQt(edit.text));
    connect(m_line, &QLineEdit::textEdited, this, type);
    m_line->installEventFilter(this);
  }
  m_editor->setObjectName(QStringLiteral("cellEditor"));
  m_editor->installEventFilter(this);
  scrollTo(m_model->index(edit.row, edit.column));
  placeEditor();
  m_editor->show();
  m_editor->setFocus(Qt::OtherFocusReason);
  if (m_line) m_line->selectAll();
  // A list opens at once, but not before the click that asked for it is over.
  if (m_combo && !m_line)
    QTimer::singleShot(0, m_combo, [combo = m_combo] {
      if (combo->isVisible()) combo->showPopup();
    });
}

void TableWidget::placeEditor() {
  if (m_editor) m_editor->setGeometry(visualRect(m_model->index(m_editRow, m_editColumn)));
}

void TableWidget::dropEditor() {
  if (!m_editor) return;
  QWidget* editor = std::exchange(m_editor, nullptr);
  m_line = nullptr;
  m_combo = nullptr;
  m_editRow = m_editColumn = -1;
  editor->removeEventFilter(this);
  const bool hadFocus = editor->hasFocus() || editor->isAncestorOf(focusWidget());
  editor->setObjectName(QString());
  editor->disconnect(this);
  editor->hide();
  editor->deleteLater(); // this may be an event of its own
  if (hadFocus) setFocus(Qt::OtherFocusReason);
}

// The next cell that can be edited, in the direction of reading.
void TableWidget::editNext(int step) {
  const int columns = m_table.GetColumnCount();
  const int cells = columns * m_table.GetRowCount();
  const int from = m_table.GetFocusRow() * columns + m_table.GetFocusColumn();
  for (int at = from + step; at >= 0 && at < cells; at += step) {
    if (!m_table.CanEdit(at / columns, at % columns)) continue;
    obey([this, at, columns] { return m_table.UserBeginEdit(at / columns, at % columns); });
    return;
  }
}

bool TableWidget::editorKey(QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    obey([this] { return m_table.UserEndEdit(); });
    return true;
  case Qt::Key_Escape:
    obey([this] { return m_table.UserCancelEdit(); });
    return true;
  case Qt::Key_Tab:
  case Qt::Key_Backtab:
    obey([this] { return m_table.UserEndEdit(); });
    if (!m_table.CurrentEdit()) editNext(event->key() == Qt::Key_Tab ? 1 : -1);
    return true;
  default:
    return false;
  }
}

bool TableWidget::eventFilter(QObject* object, QEvent* event) {
  if (m_editor && (object == m_editor || object == m_line) && event->type() == QEvent::KeyPress &&
      editorKey(static_cast<QKeyEvent*>(event)))
    return true;
  return QTableView::eventFilter(object, event);
}

} // namespace desktop
