#include "host/qt/dialogs/DesktopDialogs.h"

#include "host/ed/EdSession.h"
#include "host/qt/dialogs/FormWindow.h"
#include "host/qt/dialogs/MessageBoxes.h"
#include "host/qt/dialogs/ScriptedAnswer.h"
#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CDialog.h"

#include <QApplication>
#include <QEventLoop>
#include <QMainWindow>

namespace desktop {
namespace {

// What an event asked for in the drawing is over; a pick given up there gives up no more than the event.
void EndEvent() {
  constexpr bool cancelled = false;
  EdSession::instance().noteInput(cancelled);
}

} // namespace

DesktopDialogs::~DesktopDialogs() {
  for (const auto& [form, window] : m_dialogs) {
    window->detach();
    delete window;
  }
  for (const auto& [form, bar] : m_bars) {
    bar->detach();
    delete bar;
  }
}

QWidget* DesktopDialogs::parent() const {
  QWidget* active = QApplication::activeModalWidget();
  return active ? active : &m_window;
}

void DesktopDialogs::RunModal(CDialog& dialog) {
  QEventLoop loop;
  DialogWindow window(dialog, parent(), EndEvent, settings);
  m_dialogs[&dialog] = &window;
  window.setWindowModality(Qt::ApplicationModal);
  window.ended = [&loop] { loop.quit(); };
  window.follow();
  window.show();
  obeyScript(dialog);
  while (!dialog.HasEnded() && m_dialogs.contains(&dialog)) loop.exec();
  m_dialogs.erase(&dialog);
  window.detach();
}

// A running script goes on in the dialog that it has opened. Where it ends, or can't go on, the user does.
void DesktopDialogs::obeyScript(CDialog& dialog) {
  if (!scriptLine) return;
  auto& input = EdSession::instance().input();
  const EdInput::UserOnly userOnly(input);
  const auto any = [](const CString&) { return true; };
  while (!dialog.HasEnded() && m_dialogs.contains(&dialog)) {
    const auto line = input.readIf(dialog.GetCaption() + L":", any, EdInput::From::scripts);
    if (!line) return;
    scriptLine(dialog, line->text);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
}

void DesktopDialogs::ShowModeless(CFormWnd& form) {
  std::erase(m_modeless, &form);
  m_modeless.push_back(&form);
  if (auto* bar = dynamic_cast<CAcUiDockControlBar*>(&form)) {
    DockBar*& shown = m_bars[&form];
    if (!shown) {
      shown = new DockBar(*bar, m_window, m_afterEvent, settings);
      shown->dock();
    }
    shown->follow();
    return;
  }
  auto* dialog = dynamic_cast<CDialog*>(&form);
  if (!dialog) return;
  DialogWindow*& shown = m_dialogs[&form];
  if (!shown) shown = new DialogWindow(*dialog, &m_window, m_afterEvent, settings);
  shown->show();
  shown->follow();
}

// May be called from within an event of the window: it is deleted later.
void DesktopDialogs::WindowGone(CFormWnd& form) {
  std::erase(m_modeless, &form);
  if (const auto dialog = m_dialogs.extract(&form)) {
    dialog.mapped()->detach();
    if (dialog.mapped()->windowModality() == Qt::NonModal) dialog.mapped()->deleteLater();
  }
  if (const auto bar = m_bars.extract(&form)) {
    if (!m_barsKept) bar.mapped()->keep(false); // its program took it away
    bar.mapped()->detach();
    bar.mapped()->deleteLater();
  }
}

void DesktopDialogs::keepBars() {
  for (const auto& [form, bar] : m_bars) bar->keep(form->IsWindowVisible());
  m_barsKept = true;
}

int DesktopDialogs::ShowMessageBox(const UiMessageBox& box) {
  EdMessageBox asked{ShownCaption(box), box.text, {}, box.defaultButton};
  for (const auto& button : box.buttons) asked.buttons.push_back(button.caption);
  if (const auto button = ScriptedAnswer(asked)) return box.buttons[*button].id;
  return ShowDialogBox(parent(), box);
}

} // namespace desktop
