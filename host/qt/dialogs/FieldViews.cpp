// Fields of text and numbers, drop-down lists and lists.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/FieldWatch.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CListBox.h"
#include "host/ui/CNumberEdit.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPalette>
#include <QPlainTextEdit>

#include <algorithm>
#include <functional>

namespace desktop {
namespace {

constexpr int kFieldWidth = 120;
constexpr int kListWidth = 200;
constexpr int kLines = 4; // of a field with several

// Keeps the place of the cursor: setText would move it to the end.
void SetText(QLineEdit& line, const CString& text) {
  const QString wanted = ToQt(text);
  if (line.text() == wanted) return;
  const int at = line.cursorPosition();
  line.setText(wanted);
  line.setCursorPosition(std::min(at, static_cast<int>(wanted.size())));
}

// What can't be typed in doesn't stand out from the window as fields do.
template <class Field> void SetReadOnly(Field& field, bool readOnly) {
  field.setReadOnly(readOnly);
  QPalette palette;
  if (readOnly) palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  field.setPalette(palette);
}

class EditView : public ControlView {
 public:
  EditView(CEdit& control, FormContext& context)
      : ControlView(control, context), m_edit(control), m_line(new QLineEdit) {
    m_line->setMinimumWidth(kFieldWidth);
    setWidget(m_line);
    QObject::connect(m_line, &QLineEdit::textEdited,
                     [this](const QString& text) { obey([&] { return m_edit.UserType(FromQt(text)); }); });
    OnLeave(*m_line, [this] {
      obey([this] {
        m_edit.UserLeave();
        return UiOutcome();
      });
    });
  }

 private:
  void sync(const UiChange&) override {
    SetReadOnly(*m_line, m_edit.IsReadOnly());
    SetText(*m_line, m_edit.GetText());
  }
  CEdit& m_edit;
  QLineEdit* m_line;
};

class MultiLineView : public ControlView {
 public:
  MultiLineView(CEdit& control, FormContext& context)
      : ControlView(control, context), m_edit(control), m_text(new QPlainTextEdit) {
    m_text->setMinimumHeight(m_text->fontMetrics().lineSpacing() * kLines + 12);
    m_text->setTabChangesFocus(true);
    setWidget(m_text);
    QObject::connect(m_text, &QPlainTextEdit::textChanged,
                     [this] { obey([this] { return m_edit.UserType(FromQt(m_text->toPlainText())); }); });
    OnLeave(*m_text, [this] {
      obey([this] {
        m_edit.UserLeave();
        return UiOutcome();
      });
    });
  }

 private:
  void sync(const UiChange&) override {
    SetReadOnly(*m_text, m_edit.IsReadOnly());
    if (const QString text = ToQt(m_edit.GetText()); m_text->toPlainText() != text)
      m_text->setPlainText(text);
  }
  CEdit& m_edit;
  QPlainTextEdit* m_text;
};

// A line with two buttons that step.
class StepBox : public QAbstractSpinBox {
 public:
  std::function<void(int)> stepped;
  QLineEdit& line() { return *lineEdit(); }
  void stepBy(int steps) override {
    if (stepped) stepped(steps);
  }

 protected:
  StepEnabled stepEnabled() const override {
    return isReadOnly() ? StepNone : StepEnabled(StepUpEnabled | StepDownEnabled);
  }
};

class NumberView : public ControlView {
 public:
  NumberView(CNumberEdit& control, FormContext& context) : ControlView(control, context), m_edit(control) {
    if (control.GetSpin()) {
      auto* box = new StepBox;
      box->stepped = [this](int steps) { obey([this, steps] { return m_edit.UserStep(steps); }); };
      m_box = box;
      m_line = &box->line();
      setWidget(box);
    } else {
      m_line = new QLineEdit;
      setWidget(m_line);
    }
    widget()->setMinimumWidth(kFieldWidth);
    QObject::connect(m_line, &QLineEdit::textEdited,
                     [this](const QString& text) { obey([&] { return m_edit.UserType(FromQt(text)); }); });
    OnLeave(*widget(), [this] {
      obey([this] {
        m_edit.UserLeave();
        return UiOutcome();
      });
    });
  }

 private:
  void sync(const UiChange&) override {
    if (m_box)
      SetReadOnly(*m_box, m_edit.IsReadOnly());
    else
      SetReadOnly(*m_line, m_edit.IsReadOnly());
    SetText(*m_line, m_edit.GetText());
  }
  CNumberEdit& m_edit;
  StepBox* m_box = nullptr;
  QLineEdit* m_line = nullptr;
};

class ComboView : public ControlView {
 public:
  ComboView(CComboBox& control, FormContext& context)
      : ControlView(control, context), m_combo(control), m_shown(new QComboBox) {
    m_shown->setMinimumWidth(kFieldWidth);
    m_shown->setEditable(control.TakesFreeText());
    m_shown->setInsertPolicy(QComboBox::NoInsert);
    setWidget(m_shown);
    QObject::connect(m_shown, &QComboBox::activated,
                     [this](int index) { obey([this, index] { return m_combo.UserSelect(index); }); });
    if (m_shown->lineEdit())
      QObject::connect(m_shown->lineEdit(), &QLineEdit::textEdited,
                       [this](const QString& text) { obey([&] { return m_combo.UserType(FromQt(text)); }); });
  }

 private:
  void sync(const UiChange& change) override {
    const int at = m_shown->lineEdit() ? m_shown->lineEdit()->cursorPosition() : 0;
    if (change.kind == UiChange::Kind::content && !showsEntries()) {
      m_shown->clear();
      for (int i = 0; i < m_combo.GetCount(); ++i) m_shown->addItem(Shown(m_combo.GetLBText(i)));
    }
    m_shown->setCurrentIndex(m_combo.GetCurSel());
    if (!m_shown->lineEdit()) return;
    SetText(*m_shown->lineEdit(), m_combo.GetText());
    m_shown->lineEdit()->setCursorPosition(at); // where the user goes on typing
  }
  bool showsEntries() const {
    if (m_shown->count() != m_combo.GetCount()) return false;
    for (int i = 0; i < m_combo.GetCount(); ++i)
      if (m_shown->itemText(i) != Shown(m_combo.GetLBText(i))) return false;
    return true;
  }
  CComboBox& m_combo;
  QComboBox* m_shown;
};

// As high as its entries ask for, within reason.
class ListOfEntries : public QListWidget {
 public:
  QSize sizeHint() const override {
    constexpr int fewest = 3, most = 10; // entries
    const int entry = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + 2;
    return {kListWidth, std::clamp(count(), fewest, most) * entry + 2 * frameWidth() + 2};
  }
  QSize minimumSizeHint() const override { return {kFieldWidth, sizeHint().height()}; }
  // The entry that is current was clicked, which is no change to the widget.
  std::function<void(int)> clickedAgain;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const QListWidgetItem* item = itemAt(event->position().toPoint());
    const bool again = item && item == currentItem() && event->button() == Qt::LeftButton;
    QListWidget::mousePressEvent(event);
    if (again) clickedAgain(currentRow());
  }
};

class ListView : public ControlView {
 public:
  ListView(CListBox& control, FormContext& context)
      : ControlView(control, context), m_list(control), m_shown(new ListOfEntries) {
    setWidget(m_shown);
    QObject::connect(m_shown, &QListWidget::currentRowChanged, [this](int row) {
      if (row >= 0) obey([this, row] { return m_list.UserSelect(row); });
    });
    m_shown->clickedAgain = [this](int row) { obey([this, row] { return m_list.UserSelect(row); }); };
    QObject::connect(m_shown, &QListWidget::itemDoubleClicked, [this](QListWidgetItem* item) {
      obey([this, row = m_shown->row(item)] { return m_list.UserDoubleClick(row); });
    });
  }

 private:
  void sync(const UiChange& change) override {
    if (change.kind == UiChange::Kind::content) {
      m_shown->clear();
      for (int i = 0; i < m_list.GetCount(); ++i) m_shown->addItem(Shown(m_list.GetText(i)));
      m_shown->updateGeometry();
    }
    m_shown->setCurrentRow(m_list.GetCurSel());
  }
  CListBox& m_list;
  ListOfEntries* m_shown;
};

} // namespace

ControlViewPtr MakeEditView(CEdit& control, FormContext& context) {
  if (control.IsMultiLine()) return std::make_unique<MultiLineView>(control, context);
  return std::make_unique<EditView>(control, context);
}
ControlViewPtr MakeNumberView(CNumberEdit& control, FormContext& context) {
  return std::make_unique<NumberView>(control, context);
}
ControlViewPtr MakeComboView(CComboBox& control, FormContext& context) {
  return std::make_unique<ComboView>(control, context);
}
ControlViewPtr MakeListView(CListBox& control, FormContext& context) {
  return std::make_unique<ListView>(control, context);
}

} // namespace desktop
