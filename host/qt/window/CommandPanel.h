// What the editor said, the open prompt and the line to answer it.
#pragma once

#include "host/qt/DesktopFrontEnd.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace desktop {

class CommandEdit;
class CommandTitles;

class CommandPanel : public QWidget {
 public:
  CommandPanel(CommandFeed& feed, const CommandTitles& titles, QWidget* parent = nullptr);
  // A line end at the beginning of a text only makes sure that the text begins a line.
  void show(const CString& text, DesktopView::Tone tone);
  void promptOpened(const CString& prompt);
  CommandEdit& edit() { return *m_edit; }
  QString history() const;

 private:
  QPlainTextEdit* m_history;
  QLabel* m_prompt;
  CommandEdit* m_edit;
  bool m_atLineStart = true;
};

} // namespace desktop
