// Tells when the user leaves a widget for another one of the same window, by key or mouse.
#pragma once

#include <QEvent>
#include <QFocusEvent>
#include <QWidget>

#include <functional>

namespace desktop {

class LeaveWatch : public QObject {
 public:
  LeaveWatch(QWidget& widget, std::function<void()> left) : QObject(&widget), m_left(std::move(left)) {
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::FocusOut) {
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::MouseFocusReason)
        m_left();
    }
    return QObject::eventFilter(object, event);
  }

 private:
  std::function<void()> m_left;
};

inline void OnLeave(QWidget& widget, std::function<void()> left) {
  new LeaveWatch(widget, std::move(left)); // the widget's
}

} // namespace desktop
