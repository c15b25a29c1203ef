#include "host/qt/dialogs/ControlView.h"

#include "host/qt/QtText.h"
#include "host/ui/CFormWnd.h"
#include "host/ui/ObeyUser.h"

#include <QToolTip>
#include <QWidget>

namespace desktop {

ControlView::ControlView(CWnd& control, FormContext& context) : m_control(control), m_context(context) {
  context.views[&control] = this;
  m_watch = control.Changed.Watch([this](const UiChange& change) { changed(change); });
}

ControlView::~ControlView() {
  m_context.views.erase(&m_control);
}

void ControlView::setWidget(QWidget* widget) {
  m_widget = widget;
  widget->setObjectName(ToQt(m_control.GetCaption()));
}

void ControlView::show() {
  changed({UiChange::Kind::look, -1});
  changed({UiChange::Kind::content, -1});
}

void ControlView::focus() {
  m_widget->setFocus(Qt::OtherFocusReason);
}

void ControlView::changed(const UiChange& change) {
  const bool outer = std::exchange(m_syncing, true);
  if (change.kind == UiChange::Kind::look) {
    m_widget->setEnabled(m_control.IsWindowEnabled());
    m_widget->setVisible(m_control.IsWindowVisible());
    if (const UiFont& font = m_control.GetFont(); !font.face.IsEmpty() || font.height > 0) {
      QFont shown = m_widget->font();
      if (!font.face.IsEmpty()) shown.setFamily(ToQt(font.face));
      if (font.height > 0) shown.setPixelSize(font.height);
      m_widget->setFont(shown);
    }
    m_widget->setToolTip(Shown(m_control.GetToolTip()).toHtmlEscaped());
  }
  sync(change);
  m_syncing = outer;
}

void ControlView::obey(const std::function<UiOutcome()>& event) {
  if (m_syncing || m_context.top.HasEnded()) return;
  const std::weak_ptr<bool> alive = m_alive;
  const auto afterEvent = m_context.afterEvent;
  const UiOutcome outcome = ObeyUser(event);
  if (!alive.expired() && !outcome) {
    show(); // what the widget shows of the refused event goes
    const QPoint below(0, m_widget->height());
    QToolTip::showText(m_widget->mapToGlobal(below), Shown(outcome.reason).toHtmlEscaped(), m_widget);
  }
  if (afterEvent) afterEvent();
}

} // namespace desktop
