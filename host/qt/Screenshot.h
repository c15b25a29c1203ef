// One picture of a run: of the dialog or message box that stands open when the script has ended, or else of
// the main window. Then everything that stands open is closed, and the session ends.
#pragma once

#include "host/qt/CommandFeed.h"

#include <QTimer>

class QWidget;

namespace desktop {

class Screenshot {
 public:
  // The window and the feed must outlive it.
  Screenshot(CString file, QWidget& window, CommandFeed& feed);
  // Whether the file was written.
  bool isSaved() const { return m_saved; }

 private:
  void take(QWidget& widget);
  void look();

  CString m_file;
  CommandFeed& m_feed;
  QTimer m_timer;
  QWidget* m_lastOpen = nullptr; // the dialog that stood open at the last look, with no script left
  bool m_taken = false;
  bool m_saved = false;
};

} // namespace desktop
