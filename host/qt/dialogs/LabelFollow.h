// The label of a field or table: shows its caption as long as the control itself shows.
#pragma once

#include "host/qt/QtText.h"
#include "host/ui/CWnd.h"

#include <QLabel>

namespace desktop {

class LabelFollow : public QLabel {
 public:
  explicit LabelFollow(CWnd& control) : m_control(control) {
    setTextFormat(Qt::PlainText);
    m_watch = control.Changed.Watch([this](const UiChange& change) {
      if (change.kind == UiChange::Kind::look) follow();
    });
    follow();
  }

 private:
  void follow() {
    setText(Shown(m_control.GetCaption()));
    setEnabled(m_control.IsWindowEnabled());
    const bool visible = m_control.IsWindowVisible() && m_control.IsCaptionShown();
    if (parentWidget() || !visible) setVisible(visible); // alone it would be a window
  }
  CWnd& m_control;
  UiConnection m_watch;
};

} // namespace desktop
