// What the editor needs of the program around it: typed lines, a place to print, message boxes. The console
// and the desktop each implement it once; commands and plug-ins never see which one is there.
#pragma once

#include "host/afx/CString.h"

#include <optional>
#include <vector>

class AcApDocument;
class CWnd;
class EntityWatcher;

struct EdMessageBox {
  CString caption;
  CString text;
  std::vector<CString> buttons; // captions such as "是(Y)"; at least one
  std::size_t defaultButton = 0;
};

struct EdBoxResult {
  std::size_t button = 0; // its index
  bool answered = true;   // by the user; the default was taken otherwise
};

// A line that could not be obeyed.
struct EdRefusal {
  CString source; // the script's name; empty for lines that the user typed
  int number = 0; // of the line in its source, from 1; 0 for a line that a program gave, or none
  CString line;
  CString reason;   // a sentence
  CString expected; // what would have been accepted; may be empty
  bool scriptStopped = false;
};

class EdFrontEnd {
 public:
  virtual ~EdFrontEnd() = default;

  // The next line that the user types, without its end; nothing when there is no more input. Shows the prompt
  // if a person is reading along.
  virtual std::optional<CString> readLine(const CString& prompt) = 0;
  // Shows a line as the answer to its prompt. typed: it came from readLine.
  virtual void echo(const CString& prompt, const CString& line, bool typed) = 0;
  virtual void print(const CString& text) = 0;
  virtual EdBoxResult messageBox(const EdMessageBox& box) = 0;
  virtual void lineRefused(const EdRefusal& refusal) = 0;

  // A long task, such as 读图, is so far done, 0 to 1. False cancels it; the drawing and its file are then as
  // before. Tasks are told of by LongTask.
  virtual bool showProgress(const CString& /*task*/, double /*done*/) { return true; }
  // The task that was told of last is done, or given up.
  virtual void progressEnded() {}
  // Whether the user has cancelled what runs, since this was asked last, without a line that says so: by an
  // interrupt of the terminal. Asked ahead of each line; what is left of scripts is left out then.
  virtual bool takeInterrupt() { return false; }
  // Is told of the entities of a drawing that is being opened to be shown; null for nobody.
  virtual EntityWatcher* entityWatcher() { return nullptr; }
  // The document's picture is to be drawn anew.
  virtual void regenerate(AcApDocument&) {}
  // Whatever is still to be drawn is to be drawn before the program goes on.
  virtual void updateDisplay() {}
  // Another part of the document is to be shown, see ed::CurrentView.
  virtual void viewChanged(AcApDocument&) {}
  // Width over height of the drawing view; nothing where there is none.
  virtual std::optional<double> viewAspect() { return std::nullopt; }
  // What is shown over the drawing (EdSession::transients) is to be drawn anew.
  virtual void transientsChanged() {}
  // Takes a line at the command prompt that is for the front end's own windows and no command. Whether it
  // did.
  virtual bool takeLine(const CString&) { return false; }
  // Whether a person works in windows here: files are chosen in a dialog then, and unsaved work is asked
  // about drawing by drawing.
  virtual bool hasWindows() { return false; }
  // Null where there are no windows.
  virtual CWnd* mainWindow() { return nullptr; }
  virtual CWnd* drawingView() { return nullptr; }
  // Half the side of the pick box in drawing units at the current zoom; nothing where there is no view.
  virtual std::optional<double> pickAperture() { return std::nullopt; }
};
