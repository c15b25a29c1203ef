#include "host/qt/window/CommandEdit.h"

#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/qt/CommandFeed.h"
#include "host/qt/QtText.h"
#include "host/qt/window/CommandTitles.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStandardItemModel>

#include <algorithm>
#include <vector>

namespace desktop {
namespace {

constexpr int kNameRole = Qt::UserRole + 1;
constexpr qsizetype kMostHistory = 500;

const EdPromptState& prompt() {
  return EdSession::instance().prompts().current();
}

} // namespace

CommandEdit::CommandEdit(CommandFeed& feed, const CommandTitles& titles, QWidget* parent)
    : QLineEdit(parent), m_feed(feed), m_titles(titles), m_completion(new QStandardItemModel(this)) {
  setObjectName(QStringLiteral("commandEdit"));
  setFrame(false);
  // Not a child of the line, which would delete it each time it is taken away.
  m_completer = new QCompleter(m_completion, m_completion);
  m_completer->setCompletionRole(kNameRole);
  m_completer->setCaseSensitivity(Qt::CaseInsensitive);
  m_completer->setMaxVisibleItems(12);
  connect(m_completer, QOverload<const QString&>::of(&QCompleter::activated), this,
          [this](const QString& name) {
            setText(name);
            submit();
          });
}

void CommandEdit::fillCompletion() {
  const auto commands = acedCommandStack()->commands();
  if (commands.size() == m_commandCount) return;
  m_commandCount = commands.size();
  m_completion->clear();
  for (const auto& command : commands) {
    const CString title = m_titles.title(command->globalName());
    std::vector<CString> names{command->globalName()};
    if (command->localName() != command->globalName()) names.push_back(command->localName());
    for (const CString& name : names) {
      const QString shown = ToQt(name + (title.IsEmpty() ? CString() : L"    " + title));
      if (!m_completion->findItems(shown).isEmpty()) continue; // of another group
      auto* item = new QStandardItem(shown);
      item->setData(ToQt(name), kNameRole);
      m_completion->appendRow(item);
    }
  }
  m_completion->sort(0);
}

void CommandEdit::promptOpened() {
  fillCompletion();
  const bool commandWanted = prompt().wants == EdPromptState::Wants::command;
  m_completer->popup()->hide();
  if (commandWanted != (completer() != nullptr)) setCompleter(commandWanted ? m_completer : nullptr);
}

void CommandEdit::submit() {
  m_completer->popup()->hide();
  const QString line = text();
  clear();
  if (!line.isEmpty()) {
    m_history.removeAll(line);
    m_history.append(line);
    if (m_history.size() > kMostHistory) m_history.removeFirst();
  }
  m_recalled = m_history.size();
  m_feed.submit(FromQt(line));
}

void CommandEdit::recall(int step) {
  const qsizetype wanted = std::clamp<qsizetype>(m_recalled + step, 0, m_history.size());
  if (wanted == m_recalled) return;
  if (m_recalled == m_history.size()) m_draft = text();
  m_recalled = wanted;
  setText(wanted == m_history.size() ? m_draft : m_history[wanted]);
}

void CommandEdit::keyPressEvent(QKeyEvent* event) {
  using Wants = EdPromptState::Wants;
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    submit();
    return;
  case Qt::Key_Space:
    if (prompt().wants == Wants::text || event->modifiers() & Qt::ShiftModifier) break;
    submit();
    return;
  case Qt::Key_Escape:
    m_completer->popup()->hide();
    clear();
    m_recalled = m_history.size();
    m_feed.cancel();
    return;
  case Qt::Key_Up:
    recall(-1);
    return;
  case Qt::Key_Down:
    recall(1);
    return;
  default:
    break;
  }
  const QString typed = event->text();
  if (text().isEmpty() && typed.size() == 1 &&
      EdSession::instance().prompts().takesKey(static_cast<wchar_t>(typed[0].unicode()))) {
    m_feed.submit(FromQt(typed));
    return;
  }
  QLineEdit::keyPressEvent(event);
}

// Tab takes the first completion instead of leaving the line.
bool CommandEdit::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab &&
      !text().isEmpty() && prompt().wants == EdPromptState::Wants::command) {
    m_completer->setCompletionPrefix(text());
    if (const QString found = m_completer->currentCompletion(); !found.isEmpty()) setText(found);
    return true;
  }
  return QLineEdit::event(event);
}

} // namespace desktop
