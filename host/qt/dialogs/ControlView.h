// One control of a dialog as a widget. It shows the control's state whenever that changes, and hands over
// what the user does; all rules stay with the control.
#pragma once

#include "host/ui/CWnd.h"

#include <functional>
#include <memory>
#include <unordered_map>

class CFormWnd;
class QSettings;
class QWidget;

namespace desktop {

class ControlView;

// What the views of one window share.
struct FormContext {
  CFormWnd& top;
  std::unordered_map<const CWnd*, ControlView*> views;
  std::function<void()> afterEvent; // of the user, obeyed or refused
  QWidget* lastFocus = nullptr;     // the control in which the user was last
  QSettings* settings = nullptr;    // where views keep what the user arranged; null for nowhere
};

class ControlView {
 public:
  ControlView(CWnd& control, FormContext& context);
  virtual ~ControlView();
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  QWidget* widget() const { return m_widget; }
  CWnd& control() const { return m_control; }
  // Puts the keyboard on it.
  virtual void focus();
  // Shows all of the state; to be called once behind the constructor.
  void show();

 protected:
  // To be called by each constructor; the widget belongs to its parent widget.
  void setWidget(QWidget* widget);
  // Brings the widget up to date. Signals of the widget are not obeyed meanwhile.
  virtual void sync(const UiChange& change) = 0;
  // Runs an event of the user. The window may be gone afterwards, and this with it: nothing may follow.
  void obey(const std::function<UiOutcome()>& event);
  bool isSyncing() const { return m_syncing; }

 private:
  void changed(const UiChange& change);

  CWnd& m_control;
  FormContext& m_context;
  QWidget* m_widget = nullptr;
  bool m_syncing = false;
  std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
  UiConnection m_watch;
};

} // namespace desktop
