// How a user leaves a field: for another one of the same window, by Enter, by Escape.
#pragma once

#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

#include <functional>

namespace desktop {

// Tells when the user goes to a widget, or from it to another one of the window, by key or mouse.
class FocusWatch : public QObject {
 public:
  FocusWatch(QWidget& widget, QEvent::Type when, std::function<void()> moved)
      : QObject(&widget), m_when(when), m_moved(std::move(moved)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == m_when) {
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason)
        m_moved();
    }
    return QObject::eventFilter(object, event);
  }

 private:
  QEvent::Type m_when;
  std::function<void()> m_moved;
};

inline void OnEnter(QWidget& widget, std::function<void()> entered) {
  new FocusWatch(widget, QEvent::FocusIn, std::move(entered)); // the widget's
}
inline void OnLeave(QWidget& widget, std::function<void()> left) {
  new FocusWatch(widget, QEvent::FocusOut, std::move(left)); // the widget's
}

// Enter finishes an edit, Escape gives it up; the dialog gets neither, except for an Escape that had nothing
// to give up (givenUp is false then).
class EditKeys : public QObject {
 public:
  EditKeys(QWidget& widget, std::function<void()> finished, std::function<bool()> givenUp)
      : QObject(&widget), m_finished(std::move(finished)), m_givenUp(std::move(givenUp)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        m_finished();
        return true;
      }
      if (key == Qt::Key_Escape) return m_givenUp();
    }
    return QObject::eventFilter(object, event);
  }

 private:
  std::function<void()> m_finished;
  std::function<bool()> m_givenUp;
};

inline void OnEditKeys(QWidget& widget, std::function<void()> finished, std::function<bool()> givenUp) {
  new EditKeys(widget, std::move(finished), std::move(givenUp)); // the widget's
}

} // namespace desktop
