// A dock bar in the main window, and where it stands there.
#include "host/ed/EdSession.h"
#include "host/qt/QtText.h"
#include "host/qt/dialogs/BarMemory.h"
#include "host/qt/dialogs/FormWindow.h"
#include "host/ui/CAcUiDockControlBar.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

namespace desktop {
namespace {

Qt::DockWidgetArea AreaOf(unsigned side) {
  if (side & CAcUiDockControlBar::kDockRight) return Qt::RightDockWidgetArea;
  if (side & CAcUiDockControlBar::kDockTop) return Qt::TopDockWidgetArea;
  if (side & CAcUiDockControlBar::kDockBottom) return Qt::BottomDockWidgetArea;
  return Qt::LeftDockWidgetArea;
}

Qt::DockWidgetAreas AreasOf(unsigned sides) {
  Qt::DockWidgetAreas areas = Qt::NoDockWidgetArea;
  for (const unsigned side : {CAcUiDockControlBar::kDockLeft, CAcUiDockControlBar::kDockRight,
                              CAcUiDockControlBar::kDockTop, CAcUiDockControlBar::kDockBottom})
    if (sides & side) areas |= AreaOf(side);
  return areas;
}

bool IsBeside(Qt::DockWidgetArea area) {
  return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
}

// A place on a screen that has gone, or that has become smaller, would leave the bar out of reach.
bool IsOnScreen(const QRect& place) {
  constexpr int grip = 40; // of the title, for the mouse
  const QRect title(place.x(), place.y(), place.width(), grip);
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = title.intersected(screen->availableGeometry());
    if (seen.width() >= grip && seen.height() >= grip / 2) return true;
  }
  return false;
}

// The outermost command that runs.
QString RunningCommand() {
  return ToQt(EdSession::instance().runningCommands().SpanExcluding(L"'"));
}

} // namespace

DockBar::DockBar(CAcUiDockControlBar& bar, QMainWindow& window, std::function<void()> afterEvent,
                 QSettings* settings)
    : QDockWidget(Shown(bar.GetCaption()), &window), m_bar(&bar), m_window(window), m_settings(settings),
      m_command(RunningCommand()),
      m_holder(std::make_unique<FormHolder>(bar, std::move(afterEvent), settings)) {
  setObjectName(ToQt(bar.ToolID().IsEmpty() ? bar.GetCaption() : bar.ToolID()));
  setWidget(m_holder->widget());
  m_watch = bar.Changed.Watch([this](const UiChange&) { follow(); });
}

void DockBar::dock() {
  setAllowedAreas(AreasOf(m_bar->DockingSides()));
  const auto kept = m_settings ? BarMemory(*m_settings).bar(objectName()) : std::nullopt;
  if (!kept || (!kept->floating && !isAreaAllowed(kept->side))) {
    m_window.addDockWidget(AreaOf(m_bar->DockedSide()), this);
    if (m_bar->DockedSide() == 0) setFloating(true);
    return;
  }
  m_window.addDockWidget(isAreaAllowed(kept->side) ? kept->side : AreaOf(m_bar->DockedSide()), this);
  m_size = kept->size;
  if (!kept->floating) return;
  setFloating(true);
  if (kept->place.isValid() && IsOnScreen(kept->place)) setGeometry(kept->place);
}

void DockBar::follow() {
  if (!m_bar) return;
  setWindowTitle(Shown(m_bar->GetCaption()));
  if (isHidden() != m_bar->IsWindowVisible()) return;
  setVisible(m_bar->IsWindowVisible());
  const int size = std::exchange(m_size, 0);
  if (size > 0 && isVisible() && !isFloating())
    m_window.resizeDocks({this}, {size},
                         IsBeside(m_window.dockWidgetArea(this)) ? Qt::Horizontal : Qt::Vertical);
}

void DockBar::keep(bool open) const {
  if (!m_settings) return;
  const auto side = m_window.dockWidgetArea(const_cast<DockBar*>(this));
  BarMemory(*m_settings)
      .keep(objectName(),
            {side, IsBeside(side) ? width() : height(), isFloating(), geometry(), open, m_command});
}

void DockBar::detach() {
  m_watch.Disconnect();
  m_bar = nullptr;
  m_holder.reset();
  hide();
}

void DockBar::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (m_bar) m_bar->UserClose();
}

} // namespace desktop
