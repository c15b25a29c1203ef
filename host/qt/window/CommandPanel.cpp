#include "host/qt/window/CommandPanel.h"

#include "host/qt/QtText.h"
#include "host/qt/Theme.h"
#include "host/qt/window/CommandEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QVBoxLayout>

namespace desktop {
namespace {

constexpr int kMostLines = 5000;

QColor ColorOf(DesktopView::Tone tone) {
  switch (tone) {
  case DesktopView::Tone::typed:
    return {90, 96, 105};
  case DesktopView::Tone::refused:
    return {176, 42, 30};
  case DesktopView::Tone::said:
    break;
  }
  return {30, 32, 36};
}

} // namespace

CommandPanel::CommandPanel(CommandFeed& feed, const CommandTitles& titles, QWidget* parent)
    : QWidget(parent), m_history(new QPlainTextEdit(this)), m_prompt(new QLabel(this)),
      m_edit(new CommandEdit(feed, titles, this)) {
  QFont font = this->font();
  if (const QString family = MonospaceFamily(); !family.isEmpty()) font.setFamily(family);
  m_history->setObjectName(QStringLiteral("history"));
  m_history->setReadOnly(true);
  m_history->setFont(font);
  m_history->setMaximumBlockCount(kMostLines);
  m_history->setFrameShape(QFrame::NoFrame);
  m_history->setFocusPolicy(Qt::ClickFocus);
  m_prompt->setObjectName(QStringLiteral("prompt"));
  m_prompt->setTextFormat(Qt::PlainText);
  m_prompt->setFont(font);
  m_edit->setFont(font);
  auto* box = new QWidget(this);
  box->setAutoFillBackground(true);
  box->setBackgroundRole(QPalette::Base);
  auto* line = new QHBoxLayout(box);
  line->setContentsMargins(6, 3, 6, 3);
  line->addWidget(m_prompt);
  line->addWidget(m_edit, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(1);
  layout->addWidget(m_history, 1);
  layout->addWidget(box);
  setFocusProxy(m_edit);
}

void CommandPanel::show(const CString& text, DesktopView::Tone tone) {
  if (text.IsEmpty()) return;
  QString shown = Shown(text);
  if (shown.startsWith(QLatin1Char('\n')) && m_atLineStart) shown.remove(0, 1);
  if (shown.isEmpty()) return;
  m_atLineStart = shown.endsWith(QLatin1Char('\n'));
  QTextCursor cursor(m_history->document());
  cursor.movePosition(QTextCursor::End);
  QTextCharFormat format;
  format.setForeground(ColorOf(tone));
  cursor.insertText(shown, format);
  m_history->verticalScrollBar()->setValue(m_history->verticalScrollBar()->maximum());
}

void CommandPanel::promptOpened(const CString& prompt) {
  m_prompt->setText(Shown(prompt));
  m_edit->promptOpened();
}

QString CommandPanel::history() const {
  return m_history->toPlainText();
}

} // namespace desktop
