// A front end for tests of dialogs: message boxes are kept and answered beforehand, and a modal dialog is
// handed to what the test wants to do in it.
#pragma once

#include "host/ui/CDialog.h"
#include "host/ui/UiFrontEnd.h"

#include <deque>
#include <functional>
#include <vector>

class UiFrontEndScript : public UiFrontEnd {
 public:
  UiFrontEndScript() : m_before(UiFrontEnd::Get()) { UiFrontEnd::Set(this); }
  ~UiFrontEndScript() override { UiFrontEnd::Set(m_before); }
  UiFrontEndScript(const UiFrontEndScript&) = delete;
  UiFrontEndScript& operator=(const UiFrontEndScript&) = delete;

  std::vector<UiMessageBox> boxes;
  std::deque<int> answers; // of message boxes; the default button where there is none
  std::deque<std::function<void(CDialog&)>>
      runs;                     // what is done in the next modal dialogs; else they are closed
  std::vector<CFormWnd*> shown; // modeless
  std::vector<const CFormWnd*> gone;
  std::optional<int> colour;
  std::optional<CString> linetype;
  std::optional<int> lineWeight;
  std::optional<CString> file;
  CString choosers; // each that was opened, with what it began with: "颜色 3 线型 DASHED "

  // The text of the latest box, and forgets all of them.
  CString takeBox() {
    const CString text = boxes.empty() ? CString() : boxes.back().text;
    boxes.clear();
    return text;
  }

  void RunModal(CDialog& dialog) override {
    if (!runs.empty()) {
      const auto run = std::move(runs.front());
      runs.pop_front();
      run(dialog);
    }
    if (!dialog.HasEnded()) dialog.UserClose();
  }
  void ShowModeless(CFormWnd& window) override { shown.push_back(&window); }
  void WindowGone(CFormWnd& window) override { gone.push_back(&window); }
  int ShowMessageBox(const UiMessageBox& box) override {
    boxes.push_back(box);
    if (answers.empty()) return box.buttons[box.defaultButton].id;
    const int answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::optional<int> ChooseColour(int start, bool allowByLayerAndBlock) override {
    choosers.AppendFormat(allowByLayerAndBlock ? L"颜色 %d " : L"纯色 %d ", start);
    return colour;
  }
  std::optional<CString> ChooseLinetype(const CString& start) override {
    choosers += L"线型 " + start + L" ";
    return linetype;
  }
  std::optional<int> ChooseLineWeight(int start) override {
    choosers.AppendFormat(L"线宽 %d ", start);
    return lineWeight;
  }
  std::optional<CString> ChooseFile(const UiFileQuestion&) override { return file; }

 private:
  UiFrontEnd* m_before;
};
