// The line in which commands and answers are typed. Enter and the blank submit it, Escape cancels, the up and
// down keys bring back what was typed before; commands are completed with their titles.
#pragma once

#include "host/afx/CString.h"

#include <QLineEdit>
#include <QStringList>

class QCompleter;
class QStandardItemModel;

namespace desktop {

class CommandFeed;
class CommandTitles;

class CommandEdit : public QLineEdit {
 public:
  CommandEdit(CommandFeed& feed, const CommandTitles& titles, QWidget* parent = nullptr);
  // The editor asks for something now; commands may have come or gone.
  void promptOpened();
  // Submits the text.
  void submit();
  QCompleter& completion() { return *m_completer; }
  // A key that some other part of the window has got.
  void takeKey(QKeyEvent* event) { keyPressEvent(event); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void recall(int step);
  void fillCompletion();

  CommandFeed& m_feed;
  const CommandTitles& m_titles;
  QStandardItemModel* m_completion;
  QCompleter* m_completer;
  QStringList m_history;
  qsizetype m_recalled = 0; // index in the history; its size stands for the new line
  QString m_draft;          // the new line while older ones are shown
  std::size_t m_commandCount = 0;
};

} // namespace desktop
