#include "host/qt/dialogs/FormWindow.h"

#include "host/qt/QtText.h"
#include "host/ui/CDialog.h"
#include "host/ui/ObeyUser.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>

namespace desktop {

FormHolder::FormHolder(CFormWnd& form, std::function<void()> afterEvent, QSettings* settings)
    : m_form(form), m_context{form, {}, std::move(afterEvent), nullptr, settings} {
  m_view = std::make_unique<FormView>(form, m_context);
  m_focus = form.FocusMoved.Watch([this] { followFocus(); });
}

void FormHolder::followFocus() {
  const auto found = m_context.views.find(m_form.FocusControl());
  if (found != m_context.views.end()) found->second->focus();
}

DialogWindow::DialogWindow(CDialog& dialog, QWidget* parent, std::function<void()> afterEvent,
                           QSettings* settings)
    : QDialog(parent,
              Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_dialog(&dialog), m_afterEvent(std::move(afterEvent)),
      m_holder(std::make_unique<FormHolder>(dialog, m_afterEvent, settings)) {
  setObjectName(ToQt(dialog.GetCaption()));
  auto* layout = new QBoxLayout(QBoxLayout::TopToBottom, this);
  layout->setContentsMargins(4, 4, 4, 4);
  QWidget* form = m_holder->widget();
  const QSize room = screen() ? screen()->availableSize() * 0.94 : QSize(1200, 760);
  const QSize wanted = form->sizeHint();
  if (wanted.width() > room.width() || wanted.height() > room.height()) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(form);
    layout->addWidget(area);
    resize(wanted.boundedTo(room));
  } else {
    layout->addWidget(form);
  }
  m_watch = dialog.Changed.Watch([this](const UiChange&) { follow(); });
  setWindowTitle(Shown(dialog.GetCaption()));
  m_holder->followFocus();
}

void DialogWindow::detach() {
  m_watch.Disconnect();
  m_dialog = nullptr;
  m_holder.reset();
  hide();
}

void DialogWindow::follow() {
  if (!m_dialog) return;
  setWindowTitle(Shown(m_dialog->GetCaption()));
  if (m_dialog->HasEnded()) {
    hide();
    if (ended) ended();
    return;
  }
  if (isVisible() != m_dialog->IsWindowVisible()) setVisible(m_dialog->IsWindowVisible());
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!m_dialog) return;
  const auto after = m_afterEvent;
  ObeyUser([this] {
    m_dialog->UserClose();
    return UiOutcome();
  });
  if (after) after();
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
  if (!m_dialog) return;
  const auto after = m_afterEvent;
  switch (event->key()) {
  case Qt::Key_Escape:
    ObeyUser([this] {
      m_dialog->UserEscape();
      return UiOutcome();
    });
    break;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (auto* button = dynamic_cast<QPushButton*>(focusWidget()))
      button->click();
    else
      ObeyUser([this] { return m_dialog->UserEnter(); });
    break;
  default:
    QWidget::keyPressEvent(event);
    return;
  }
  if (after) after();
}

} // namespace desktop
