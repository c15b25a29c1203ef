#include "host/qt/Screenshot.h"

#include "host/afx/Paths.h"
#include "host/ed/EdSession.h"
#include "host/qt/canvas/Canvas.h"

#include <QApplication>
#include <QPixmap>
#include <QWidget>

#include <iostream>

namespace desktop {
namespace {

constexpr int kSettled = 300; // milliseconds after which a window stands as it will be

} // namespace

Screenshot::Screenshot(CString file, QWidget& window, CommandFeed& feed)
    : m_file(std::move(file)), m_feed(feed) {
  // The script may have ended in the middle of a command, to show what is dragged.
  feed.whenWaiting([this, &window] {
    if (m_taken || QApplication::activeModalWidget()) return;
    QApplication::processEvents();
    take(window);
  });
  QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
  m_timer.start(kSettled);
}

void Screenshot::take(QWidget& widget) {
  m_taken = true;
  // A large drawing may still be in the making.
  for (QWidget* inside : widget.findChildren<QWidget*>(QStringLiteral("canvas")))
    if (auto* canvas = dynamic_cast<Canvas*>(inside)) canvas->finishPainting();
  m_saved = widget.grab().save(QString::fromStdString(afx::NativePath(m_file)), "PNG");
  if (!m_saved) std::cout << "不能写图片文件“" << m_file.ToUtf8() << "”。\n";
  m_feed.whenIdle([] { EdSession::instance().requestQuit(); });
}

void Screenshot::look() {
  QWidget* open = QApplication::activeModalWidget();
  auto& input = EdSession::instance().input();
  input.dropFinished();
  // The script's last line may still be at work: it may have closed another dialog above this one.
  const bool settled = open && open == m_lastOpen;
  m_lastOpen = input.scriptDepth() > 0 ? nullptr : open;
  if (!settled || !m_lastOpen) return;
  if (!m_taken) take(*open);
  open->close();
}

} // namespace desktop
