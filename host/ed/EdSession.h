// One run of the editor: reads lines, finds commands and runs them, each as one undo step under a write lock.
// A command that fails or is cancelled leaves the drawing as it was.
#pragma once

#include "host/ed/AcEdCommand.h"
#include "host/ed/EdInput.h"
#include "host/ed/EdKeywords.h"
#include "host/ed/EdPromptState.h"
#include "host/ed/EdTransients.h"

#include <memory>
#include <vector>

class AcApDocument;
class EdFrontEnd;

class EdSession {
 public:
  static constexpr std::size_t kMaxNestedCommands = 16;
  // Texts that commands may send for later, one after the other, without the user typing anything.
  static constexpr int kMaxSentTexts = 1000;

  static EdSession& instance();

  void setFrontEnd(EdFrontEnd* frontEnd);
  EdFrontEnd* frontEnd() const { return m_frontEnd; }
  EdInput& input() { return m_input; }

  // Reads and obeys lines until QUIT or the end of the input.
  void run();
  // Obeys one line as at the command prompt, then what commands sent for later.
  void executeLine(const CString& line);
  void requestQuit() { m_quit = true; }
  bool quitRequested() const { return m_quit; }
  // Ends all input and forgets the state of prompts; documents and commands stay.
  void reset();

  enum class Outcome { done, cancelled, failed, unknown };
  // Runs a command by name inside the running one, if there is one.
  Outcome runCommand(const CString& name);
  // The names of the running commands, outermost first, joined by "'"; empty between commands.
  CString runningCommands() const;
  bool isRunning(AcRxFunctionPtr function) const;
  // Whether the innermost command works on what was selected before it.
  bool commandUsesPickSet() const;
  std::size_t commandDepth() const { return m_running.size(); }

  // What is being asked for, and what is shown over the drawing meanwhile.
  EdPromptStates& prompts() { return m_prompts; }
  EdTransients& transients() { return m_transients; }

  // Every prompt tells how it ended, and so does a dialog's event: a command whose last input was Escape
  // counts as cancelled.
  void noteInput(bool cancelled);

  // The line read last could not be obeyed: why, and what would have been right. Scripts stop there, since
  // their next lines count on this one.
  void refuse(const CString& reason, const CString& expected = {});
  int refusedLines() const { return m_refused; }

  void print(const CString& text);

  // What acedInitGet asked for, for the next prompt only.
  struct InitGet {
    int flags = 0;
    EdKeywords keywords;
  };
  void setInitGet(InitGet initGet) { m_initGet = std::move(initGet); }
  InitGet takeInitGet();
  void setLastKeyword(const CString& keyword) { m_keyword = keyword; }
  const CString& lastKeyword() const { return m_keyword; }

 private:
  EdSession();
  struct Running {
    std::shared_ptr<const AcEdCommand> command;
    AcApDocument* document = nullptr; // the one it holds a lock on
    bool lastInputCancelled = false;
  };
  void obey(const CString& line);
  void runSentTexts();
  bool promoteSentText();
  Outcome run(std::shared_ptr<const AcEdCommand> command);
  Outcome call(Running& running, CString& failure);

  EdFrontEnd* m_frontEnd = nullptr;
  EdInput m_input;
  EdPromptStates m_prompts;
  EdTransients m_transients;
  std::vector<std::unique_ptr<Running>> m_running;
  CString m_lastCommand;
  InitGet m_initGet;
  CString m_keyword;
  int m_sentTexts = 0;
  int m_refused = 0;
  bool m_quit = false;
};
