#include "host/qt/window/TaskBar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace desktop {
namespace {

constexpr qint64 kUnseen = 200; // milliseconds that a task may take without being shown
constexpr qint64 kBetween = 40; // from one look at the window's events to the next
constexpr int kSteps = 1000;

bool isFromUser(QEvent::Type type) {
  switch (type) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseMove:
  case QEvent::Wheel:
  case QEvent::KeyPress:
  case QEvent::KeyRelease:
  case QEvent::Shortcut:
  case QEvent::ShortcutOverride:
  case QEvent::InputMethod:
  case QEvent::ContextMenu:
  case QEvent::DragEnter:
  case QEvent::DragMove:
  case QEvent::Drop:
  case QEvent::Close:
  case QEvent::TouchBegin:
  case QEvent::TabletPress:
    return true;
  default:
    return false;
  }
}

} // namespace

TaskBar::TaskBar(QWidget* parent)
    : QWidget(parent), m_name(new QLabel(this)), m_done(new QProgressBar(this)),
      m_cancel(new QPushButton(QStringLiteral("取消（Esc）"), this)) {
  setObjectName(QStringLiteral("task"));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_name);
  layout->addWidget(m_done, 1);
  layout->addWidget(m_cancel);
  m_done->setRange(0, kSteps);
  m_done->setFixedWidth(240);
  m_cancel->setFocusPolicy(Qt::NoFocus);
  connect(m_cancel, &QPushButton::clicked, this, [this] { m_cancelled = m_running; });
  hide();
}

TaskBar::~TaskBar() {
  end();
}

void TaskBar::begin() {
  m_running = true;
  m_cancelled = false;
  m_sinceBegin.start();
  m_sinceTold.start();
  qApp->installEventFilter(this);
}

bool TaskBar::tell(const QString& task, double done) {
  if (!m_running) begin();
  if (m_cancelled || m_sinceTold.elapsed() < kBetween) return !m_cancelled;
  m_name->setText(task);
  m_done->setValue(static_cast<int>(done * kSteps));
  if (m_sinceBegin.elapsed() >= kUnseen && !isVisible()) show();
  QApplication::processEvents();
  m_sinceTold.start();
  return !m_cancelled;
}

void TaskBar::end() {
  if (!m_running) return;
  m_running = false;
  qApp->removeEventFilter(this);
  hide();
}

bool TaskBar::eventFilter(QObject* object, QEvent* event) {
  // Events of the system's windows come again for the widget below the mouse or with the focus.
  const bool comesAgain = object->isWindowType();
  if (comesAgain || object == m_cancel || !isFromUser(event->type())) return false;
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
    m_cancelled = true;
  // A window that is closed by an event which nobody has refused would vanish.
  event->setAccepted(event->type() != QEvent::Close);
  return true;
}

} // namespace desktop
