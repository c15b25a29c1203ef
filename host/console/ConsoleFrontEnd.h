// The editor at a terminal or in a pipe: lines in, text out, UTF-8 both ways. What comes from a script or a
// pipe is shown behind its prompt, so that the output reads like a session.
#pragma once

#include "host/console/ConsoleDialogs.h"
#include "host/ui/CFrameWnd.h"

#include <chrono>
#include <iosfwd>

struct ConsoleStreams {
  bool interactive = false; // a person types at a terminal, which shows the typed lines itself
  bool terminalOut = false; // a line of the output can be written over
};

class ConsoleFrontEnd : public EdFrontEnd {
 public:
  ConsoleFrontEnd(std::istream& in, std::ostream& out, ConsoleStreams streams)
      : m_in(in), m_out(out), m_interactive(streams.interactive), m_showsProgress(streams.terminalOut) {}

  std::optional<CString> readLine(const CString& prompt) override;
  void echo(const CString& prompt, const CString& line, bool typed) override;
  // A line end at the beginning of a text only makes sure that the text begins a line.
  void print(const CString& text) override;
  // Prints "[CAPTION] text". The next line answers when it is "answer BUTTON" or names a button; otherwise
  // the default button is taken and the line left where it is.
  EdBoxResult messageBox(const EdMessageBox& box) override;
  void lineRefused(const EdRefusal& refusal) override;
  bool showProgress(const CString& task, double done) override;
  void progressEnded() override;
  bool takeInterrupt() override;
  bool takeLine(const CString& line) override { return m_dialogs.ObeyBarLine(line); }
  CWnd* mainWindow() override { return &m_frame; }
  CWnd* drawingView() override { return &m_view; }
  ConsoleDialogs& dialogs() { return m_dialogs; }
  // Ctrl+C has ended input that nobody types.
  bool wasInterrupted() const { return m_interrupted; }
  // Ends an open line and hands everything to the system.
  void finish();

 private:
  void write(const CString& text);
  void freshLine();
  void eraseProgress();
  bool takeTyped(std::string& line);
  CString afterInterrupt();

  std::istream& m_in;
  std::ostream& m_out;
  bool m_interactive;
  bool m_showsProgress;
  bool m_atLineStart = true;
  bool m_interrupted = false;
  bool m_endsNext = false; // Ctrl+C was the last that came at the command prompt
  std::optional<std::chrono::steady_clock::time_point> m_taskBegan;
  std::chrono::steady_clock::time_point m_lastShown;
  bool m_progressStands = false; // a line that is to be written over
  ConsoleDialogs m_dialogs{*this};
  CFrameWnd m_frame; // nobody sees them; they are what dialogs have as their parents
  CWnd m_view;
};
