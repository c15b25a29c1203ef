#include "host/qt/DesktopProgram.h"

#include "host/afx/AtomicFile.h"
#include "host/afx/Paths.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ed/EdSession.h"
#include "host/ed/acedCommand.h"
#include "host/qt/DesktopFrontEnd.h"
#include "host/qt/DisplayProbe.h"
#include "host/qt/QtText.h"
#include "host/qt/Screenshot.h"
#include "host/qt/Theme.h"
#include "host/qt/dialogs/BarMemory.h"
#include "host/qt/dialogs/DesktopDialogs.h"
#include "host/qt/window/Autosave.h"
#include "host/qt/window/MainWindow.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <iostream>
#include <memory>

namespace desktop {
namespace {

QString StateFolder(const DesktopJob& job) {
  if (job.stateFolder) return QString::fromStdString(afx::NativePath(*job.stateFolder));
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/zpcad");
}

// What stands between a session and the next one, also when it ends early.
class SessionScope {
 public:
  SessionScope(DesktopFrontEnd& frontEnd, UiFrontEnd& dialogs) {
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(&frontEnd);
    UiFrontEnd::Set(&dialogs);
  }
  ~SessionScope() {
    acrxDynamicLinker->unloadAll();
    acDocManager->clearPendingText();
    acDocManager->closeAll();
    EdSession::instance().reset();
    EdSession::instance().setFrontEnd(nullptr);
    UiFrontEnd::Set(nullptr);
  }
  SessionScope(const SessionScope&) = delete;
  SessionScope& operator=(const SessionScope&) = delete;
};

bool PushScript(const CString& path, MainWindow& window) {
  constexpr std::uint64_t largest = 64ull << 20;
  std::string bytes;
  const auto result = afx::ReadWholeFile(path, bytes, largest);
  if (!result.ok) {
    window.show(L"\n" + result.message + L"\n", DesktopView::Tone::refused);
    return false;
  }
  EdSession::instance().input().push(std::make_unique<EdScriptSource>(path, std::move(bytes)));
  return true;
}

// What a run that ended early has left.
void OfferLeft(Autosave& autosave, MainWindow& window) {
  const auto left = autosave.takeLeft();
  if (left.empty()) return;
  CString text = L"上次运行没有正常结束。下列图形的修改可以恢复，要打开吗？\n";
  for (const auto& drawing : left) text += L"\n" + drawing.title;
  if (window.ask({L"zpcad", text, {L"打开(O)", L"不打开(N)"}, 0}).button != 0) {
    window.show(L"\n没有打开的副本留在 " + FromQt(left.front().file) + L" 所在的文件夹中。\n",
                DesktopView::Tone::said);
    return;
  }
  // The copies go only when the drawings stand in this run's own.
  bool opened = true;
  for (const auto& drawing : left) opened &= Autosave::open(drawing);
  if (opened && autosave.save()) autosave.discard(left);
}

// Those that stood open when the program ended last.
void OpenBars(const BarMemory& memory, MainWindow& window) {
  for (const QString& command : memory.openingCommands())
    if (const CString name = FromQt(command); acedCommandStack()->lookupCmd(name)) window.runLines({name});
}

constexpr int kAutosaveEvery = 3 * 60 * 1000; // milliseconds
constexpr int kAutosaveAgain = 10 * 1000;     // while a command runs

int Run(const DesktopJob& job, QSettings& settings, const QString& folder) {
  CommandFeed feed;
  CommandTitles titles(job.commandTitle);
  MainWindow window(feed, titles, settings);
  DesktopFrontEnd frontEnd(feed, window);
  DesktopDialogs dialogs(window, [&] {
    window.followDrawing();
    feed.wake();
  });
  dialogs.scriptLine = job.obeyDialogLine;
  dialogs.settings = &settings;
  if (job.obeyBarLine)
    frontEnd.barLine = [&](const CString& line) { return job.obeyBarLine(dialogs.modeless(), line); };
  const SessionScope scope(frontEnd, dialogs);
  auto& session = EdSession::instance();
  window.show();
  acDocManager->newDocument();
  for (const auto& plugIn : job.plugIns)
    if (acrxDynamicLinker->loadModule(plugIn, true)) titles.addPlugIn(plugIn);
  window.buildMenus();
  int status = kDone;
  if (job.drawing && acedCommandTexts({L"OPEN", *job.drawing}, false) != RTNORM) status = kUnusable;
  if (job.script && !PushScript(*job.script, window)) status = kUnusable;
  Autosave autosave(folder + QStringLiteral("/autosave"));
  QTimer autosaveTimer;
  QObject::connect(&autosaveTimer, &QTimer::timeout,
                   [&] { autosaveTimer.start(autosave.save() ? kAutosaveEvery : kAutosaveAgain); });
  autosaveTimer.start(kAutosaveEvery);
  if (!job.screenshot && !job.script) {
    feed.whenIdle([&] { OfferLeft(autosave, window); });
    OpenBars(BarMemory(settings), window);
  }
  std::optional<Screenshot> screenshot;
  if (job.screenshot) screenshot.emplace(*job.screenshot, window, feed);
  session.run();
  window.saveState();
  dialogs.keepBars();
  if (!screenshot) return kDone;
  if (!screenshot->isSaved()) return kUnusable;
  return status == kDone && session.refusedLines() > 0 ? kRefused : status;
}

} // namespace

int RunDesktop(const DesktopJob& job, int argc, char** argv) {
  if (!HasDisplay()) {
    std::cout << "没有可用的显示，不能打开窗口。请用 zpcad --console 在终端中运行。\n";
    return kNoDisplay;
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("zpcad"));
  QApplication::setQuitOnLastWindowClosed(false);
  ApplyTheme(application);
  const QString folder = StateFolder(job);
  QDir().mkpath(folder);
  QSettings settings(folder + QStringLiteral("/zpcad.ini"), QSettings::IniFormat);
  return Run(job, settings, folder);
}

} // namespace desktop

extern "C" int ZpRunDesktop(const DesktopJob* job, int argc, char** argv) {
  return desktop::RunDesktop(*job, argc, argv);
}
