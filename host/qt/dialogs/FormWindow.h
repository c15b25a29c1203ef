// A dialog or dock bar as a window: the form inside it, its title, focus, and how it goes.
#pragma once

#include "host/qt/dialogs/FormView.h"
#include "host/ui/CFormWnd.h"

#include <QDialog>
#include <QDockWidget>

class CAcUiDockControlBar;
class CDialog;
class QMainWindow;

namespace desktop {

// What both kinds of windows share: the form, and the state that the window itself shows.
class FormHolder {
 public:
  FormHolder(CFormWnd& form, std::function<void()> afterEvent, QSettings* settings);
  QWidget* widget() const { return m_view->widget(); }
  CFormWnd& form() const { return m_form; }
  // The control that has the keyboard in the form's own opinion.
  void followFocus();

 private:
  CFormWnd& m_form;
  FormContext m_context;
  std::unique_ptr<FormView> m_view;
  UiConnection m_focus;
};

class DialogWindow : public QDialog {
 public:
  // afterEvent is told of everything that the user does. Without settings what he arranges is not kept.
  DialogWindow(CDialog& dialog, QWidget* parent, std::function<void()> afterEvent, QSettings* settings);
  // Nothing of the dialog may be used any more.
  void detach();
  // Whoever waits for the end.
  std::function<void()> ended;
  void follow();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override {} // only by the dialog's own rules

 private:
  CDialog* m_dialog;
  std::function<void()> m_afterEvent;
  std::unique_ptr<FormHolder> m_holder;
  UiConnection m_watch;
};

class DockBar : public QDockWidget {
 public:
  // Without settings it isn't remembered where the user leaves it.
  DockBar(CAcUiDockControlBar& bar, QMainWindow& window, std::function<void()> afterEvent,
          QSettings* settings);
  // To its place in the main window: where the user left it, or else where the bar wants to be.
  void dock();
  // Shows it, or not, as the bar tells.
  void follow();
  // Remembers where it stands now, and whether it is open.
  void keep(bool open) const;
  void detach();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  CAcUiDockControlBar* m_bar;
  QMainWindow& m_window;
  QSettings* m_settings;
  QString m_command; // that made it
  int m_size = 0;    // that it is to have once it is shown; 0 for what it needs
  std::unique_ptr<FormHolder> m_holder;
  UiConnection m_watch;
};

} // namespace desktop
