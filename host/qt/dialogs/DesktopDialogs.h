// Dialogs, dock bars, message boxes and choosers as windows.
#pragma once

#include "host/ui/UiFrontEnd.h"

#include <functional>
#include <unordered_map>

class QMainWindow;
class QSettings;
class QWidget;

namespace desktop {

class DialogWindow;
class DockBar;

class DesktopDialogs : public UiFrontEnd {
 public:
  // afterEvent is told of everything that the user does in a window that stands beside other work.
  DesktopDialogs(QMainWindow& window, std::function<void()> afterEvent)
      : m_window(window), m_afterEvent(std::move(afterEvent)) {}
  ~DesktopDialogs() override;

  // Obeys a script's line in the dialog that stands open. Without it scripts wait for the user there.
  std::function<void(CDialog&, const CString&)> scriptLine;

  // Where the user's widths of columns and places of bars are kept; null for nowhere.
  QSettings* settings = nullptr;

  // What stands beside other work, that shown last at the end.
  const std::vector<CFormWnd*>& modeless() const { return m_modeless; }
  // Before the program ends: bars that are open now are to be open when it begins again.
  void keepBars();

  void RunModal(CDialog& dialog) override;
  void ShowModeless(CFormWnd& window) override;
  void WindowGone(CFormWnd& window) override;
  int ShowMessageBox(const UiMessageBox& box) override;
  std::optional<int> ChooseColour(int start, bool allowByLayerAndBlock) override;
  std::optional<CString> ChooseLinetype(const CString& start) override;
  std::optional<int> ChooseLineWeight(int start) override;
  std::optional<CString> ChooseFile(const UiFileQuestion& question) override;

 private:
  QWidget* parent() const;
  void obeyScript(CDialog& dialog);

  QMainWindow& m_window;
  std::function<void()> m_afterEvent;
  std::vector<CFormWnd*> m_modeless;
  bool m_barsKept = false;
  std::unordered_map<CFormWnd*, DialogWindow*> m_dialogs;
  std::unordered_map<CFormWnd*, DockBar*> m_bars;
};

} // namespace desktop
