// The window: menus, a tab for each drawing, the canvas, the command line, the status bar.
#pragma once

#include "host/ed/AcApDocManagerReactor.h"
#include "host/ge/AcGePoint3d.h"
#include "host/qt/DesktopFrontEnd.h"
#include "host/qt/window/CommandTitles.h"
#include "host/ui/CFrameWnd.h"

#include <QMainWindow>

class QLabel;
class QSettings;
class QTabBar;
class QToolButton;

namespace desktop {

class Canvas;
class CommandPanel;
class RecentFiles;
class TaskBar;

class MainWindow : public QMainWindow, public DesktopView, private AcApDocManagerReactor {
 public:
  // Settings are kept there: the look, the recent files, where things stood.
  MainWindow(CommandFeed& feed, const CommandTitles& titles, QSettings& settings);
  ~MainWindow() override;

  Canvas& canvas() { return *m_canvas; }
  CommandPanel& panel() { return *m_panel; }
  QTabBar& tabs() { return *m_tabs; }
  TaskBar& task() { return *m_task; }
  // Runs a command line by line once nothing else runs, as if it were typed.
  void runLines(std::initializer_list<const wchar_t*> lines);
  // Opens a file without asking for its name.
  void openFile(const CString& path);
  void setDarkCanvas(bool dark);
  // Something outside of commands may have changed the drawing.
  void followDrawing();
  // After all commands are registered.
  void buildMenus();
  void saveState();

  // DesktopView
  void show(const CString& text, Tone tone) override;
  using QMainWindow::show;
  void promptOpened(const CString& prompt) override;
  EdBoxResult ask(const EdMessageBox& box) override;
  bool showTask(const CString& task, double done) override;
  void endTask() override;
  EntityWatcher* entityWatcher() override;
  void redraw() override;
  void redrawOverlay() override;
  void viewMoved() override;
  std::optional<double> aspect() override;
  std::optional<double> pickAperture() override;
  CWnd* frame() override { return &m_frame; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  CWnd* drawingWindow() override { return &m_canvasWindow; }
  void documentCreated(AcApDocument* document) override;
  void documentToBeDestroyed(AcApDocument* document) override;
  void documentDestroyed(const wchar_t* fileName) override;
  void documentBecameCurrent(AcApDocument* document) override;
  void documentTitleUpdated(AcApDocument* document) override;
  void buildStatusBar();
  void refreshTabs();
  void refreshStatus();
  void showCursor(const AcGePoint3d& at);
  void showCanvasMenu(const QPoint& at);
  void toggle(const wchar_t* variable, long bit);

  struct Frame : CFrameWnd {
    MainWindow* window = nullptr;
    void SetActiveWindow() override;
  };

  CommandFeed& m_feed;
  const CommandTitles& m_titles;
  QSettings& m_settings;
  Frame m_frame;
  CWnd m_canvasWindow;
  QTabBar* m_tabs = nullptr;
  Canvas* m_canvas = nullptr;
  CommandPanel* m_panel = nullptr;
  RecentFiles* m_recent = nullptr;
  TaskBar* m_task = nullptr;
  QLabel* m_coordinates = nullptr;
  QLabel* m_layer = nullptr;
  QToolButton* m_snap = nullptr;
  QToolButton* m_ortho = nullptr;
  bool m_fillingTabs = false;
};

} // namespace desktop
