// The editor in a window: lines come from the feed, everything said goes to whoever shows it.
#pragma once

#include "host/ed/EdFrontEnd.h"
#include "host/qt/CommandFeed.h"

#include <functional>

namespace desktop {

// Where the editor's words and pictures go. The main window is the one that there is.
class DesktopView {
 public:
  virtual ~DesktopView() = default;
  enum class Tone { said, typed, refused };
  virtual void show(const CString& text, Tone tone) = 0;
  // The editor waits for an answer to the prompt.
  virtual void promptOpened(const CString& prompt) = 0;
  virtual EdBoxResult ask(const EdMessageBox& box) = 0;
  // See EdFrontEnd::showProgress.
  virtual bool showTask(const CString& task, double done) = 0;
  virtual void endTask() = 0;
  virtual EntityWatcher* entityWatcher() = 0; // see EdFrontEnd
  virtual void redraw() = 0;                  // the drawing, from the database
  virtual void redrawOverlay() = 0;           // what is shown over it
  virtual void viewMoved() = 0;
  virtual std::optional<double> aspect() = 0;
  virtual std::optional<double> pickAperture() = 0;
  virtual CWnd* frame() = 0;
  virtual CWnd* drawingWindow() = 0;
};

class DesktopFrontEnd : public EdFrontEnd {
 public:
  DesktopFrontEnd(CommandFeed& feed, DesktopView& view) : m_feed(feed), m_view(view) {}

  // Takes a line that is for a window beside other work. Without it there is no such line.
  std::function<bool(const CString&)> barLine;

  std::optional<CString> readLine(const CString& prompt) override;
  void echo(const CString& prompt, const CString& line, bool typed) override;
  void print(const CString& text) override { m_view.show(text, DesktopView::Tone::said); }
  EdBoxResult messageBox(const EdMessageBox& box) override { return m_view.ask(box); }
  void lineRefused(const EdRefusal& refusal) override;
  bool showProgress(const CString& task, double done) override { return m_view.showTask(task, done); }
  void progressEnded() override { m_view.endTask(); }
  EntityWatcher* entityWatcher() override { return m_view.entityWatcher(); }
  void regenerate(AcApDocument&) override { m_view.redraw(); }
  void viewChanged(AcApDocument&) override { m_view.viewMoved(); }
  std::optional<double> viewAspect() override { return m_view.aspect(); }
  void transientsChanged() override { m_view.redrawOverlay(); }
  bool takeLine(const CString& line) override { return barLine && barLine(line); }
  bool hasWindows() override { return true; }
  CWnd* mainWindow() override { return m_view.frame(); }
  CWnd* drawingView() override { return m_view.drawingWindow(); }
  std::optional<double> pickAperture() override { return m_view.pickAperture(); }

 private:
  CommandFeed& m_feed;
  DesktopView& m_view;
  bool m_silent = false; // the line read last
};

} // namespace desktop
