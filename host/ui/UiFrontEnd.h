// What dialogs need of the program around them: to be run, message boxes, and the choosers that the host
// offers. The desktop and the console each implement it once.
#pragma once

#include "host/ui/MessageBox.h"

#include <optional>

class CDialog;
class CFormWnd;

struct UiFileQuestion {
  CString title;
  CString folder;
  CString name;
  std::vector<CString> patterns; // such as "*.dxf"; empty for all files
  bool save = false;             // a file that need not exist
};

class UiFrontEnd {
 public:
  // Colour numbers that are no colours.
  static constexpr int kColourByBlock = 0;
  static constexpr int kColourByLayer = 256;
  // Line weights in hundredths of a millimetre; these are none.
  static constexpr int kWeightByLayer = -1;
  static constexpr int kWeightByBlock = -2;
  static constexpr int kWeightDefault = -3;

  virtual ~UiFrontEnd() = default;

  // Null in a program that shows nothing.
  static UiFrontEnd* Get();
  static void Set(UiFrontEnd* frontEnd);

  // Shows the dialog and hands the user's events to its controls until dialog.HasEnded(). Called while
  // another dialog runs, whose windows rest until this returns.
  virtual void RunModal(CDialog& dialog) = 0;
  // Shows a dialog or dock bar beside other work until WindowGone; tells of it as often as it is shown anew.
  virtual void ShowModeless(CFormWnd& window) = 0;
  // Called from the window's destructor and when it is hidden for good: nothing of it may be used any more.
  virtual void WindowGone(CFormWnd& window) = 0;

  // The id of the button that the user pressed.
  virtual int ShowMessageBox(const UiMessageBox& box) = 0;

  // Choosers start at a value and give nothing when the user cancels.
  virtual std::optional<int> ChooseColour(int start, bool allowByLayerAndBlock) = 0; // 1 to 255, or as above
  virtual std::optional<CString> ChooseLinetype(const CString& start) = 0;           // of the current drawing
  virtual std::optional<int> ChooseLineWeight(int start) = 0;
  virtual std::optional<CString> ChooseFile(const UiFileQuestion& question) = 0;
};
