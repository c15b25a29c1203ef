// The editor with a new drawing and a user who types what the test tells: lines answer prompts, and all that
// is printed is kept.
#pragma once

#include <deque>
#include <optional>
#include <string>

#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"
#include "tests/support/WorkingDrawing.h"

class ScriptedEditor : public EdFrontEnd {
 public:
  ScriptedEditor() {
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(this);
    acDocManagerPtr()->newDocument();
  }
  ~ScriptedEditor() override {
    acDocManagerPtr()->clearPendingText();
    acDocManagerPtr()->closeAll();
    EdSession::instance().setFrontEnd(nullptr);
    EdSession::instance().reset();
  }
  ScriptedEditor(const ScriptedEditor&) = delete;
  ScriptedEditor& operator=(const ScriptedEditor&) = delete;

  AcDbDatabase& Database() { return *acDocManagerPtr()->curDocument()->database(); }

  // Runs the command with these lines as answers; at the end of the lines there is no more input.
  void Run(const wchar_t* command, std::initializer_list<CString> answers = {}) {
    lines.assign(answers.begin(), answers.end());
    EdSession::instance().executeLine(command);
  }

  std::optional<CString> readLine(const CString& prompt) override {
    prompts.push_back(prompt);
    if (lines.empty()) return std::nullopt;
    const CString line = lines.front();
    lines.pop_front();
    return line;
  }
  void echo(const CString&, const CString&, bool) override {}
  void print(const CString& text) override { printed += text; }
  EdBoxResult messageBox(const EdMessageBox& box) override {
    printed += L"[" + box.caption + L"] " + box.text;
    return {box.defaultButton, false};
  }
  void lineRefused(const EdRefusal& refusal) override { refused.push_back(refusal.reason); }
  CWnd* mainWindow() override { return frame; }

  std::deque<CString> lines; // not read yet
  std::vector<CString> prompts;
  std::vector<CString> refused;
  CString printed;
  CWnd* frame = nullptr; // not owned
};

// "#HANDLE", as a user names an entity.
inline CString Named(const AcDbObjectId& id) {
  return L"#" + id.handle().ascii();
}
