// Dialogs at the console: lines are read and obeyed until the dialog ends, and the end of the input closes
// it.
#pragma once

#include "host/ui/UiFrontEnd.h"

#include "host/ed/EdFrontEnd.h"

class ConsoleDialogs : public UiFrontEnd {
 public:
  // Message boxes and texts go through the front end, which must outlive this.
  explicit ConsoleDialogs(EdFrontEnd& frontEnd) : m_frontEnd(frontEnd) {}

  void RunModal(CDialog& dialog) override;
  void ShowModeless(CFormWnd& window) override;
  void WindowGone(CFormWnd& window) override;
  int ShowMessageBox(const UiMessageBox& box) override;
  std::optional<int> ChooseColour(int start, bool allowByLayerAndBlock) override;
  std::optional<CString> ChooseLinetype(const CString& start) override;
  std::optional<int> ChooseLineWeight(int start) override;
  std::optional<CString> ChooseFile(const UiFileQuestion& question) override;

  // "bar LINE" at the command prompt is a line for the bar shown last. Whether the line was one of those.
  bool ObeyBarLine(const CString& line);

 private:
  EdFrontEnd& m_frontEnd;
  std::vector<CFormWnd*> m_modeless;
};
