#include "host/qt/window/MainWindow.h"

#include "host/ed/AcApDocManager.h"
#include "host/ed/EdSession.h"
#include "host/ed/acedCommand.h"
#include "host/qt/QtText.h"
#include "host/qt/canvas/Canvas.h"
#include "host/qt/dialogs/MessageBoxes.h"
#include "host/qt/dialogs/ScriptedAnswer.h"
#include "host/qt/window/CommandEdit.h"
#include "host/qt/window/CommandPanel.h"
#include "host/qt/window/RecentFiles.h"
#include "host/qt/window/TaskBar.h"

#include <QCloseEvent>
#include <QSettings>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

#include <memory>

namespace desktop {
namespace {

AcApDocument* documentOfTab(const QTabBar& tabs, int index) {
  return static_cast<AcApDocument*>(tabs.tabData(index).value<void*>());
}

} // namespace

void MainWindow::Frame::SetActiveWindow() {
  window->activateWindow();
  window->panel().edit().setFocus();
}

MainWindow::MainWindow(CommandFeed& feed, const CommandTitles& titles, QSettings& settings)
    : m_feed(feed), m_titles(titles), m_settings(settings), m_tabs(new QTabBar(this)),
      m_canvas(new Canvas(feed, this)), m_panel(new CommandPanel(feed, titles, this)),
      m_recent(new RecentFiles(
          settings, [this](const CString& path) { openFile(path); }, this)) {
  m_frame.window = this;
  setWindowTitle(QStringLiteral("zpcad"));
  resize(1280, 820);
  m_tabs->setObjectName(QStringLiteral("drawingTabs"));
  m_tabs->setTabsClosable(true);
  m_tabs->setDocumentMode(true);
  m_tabs->setExpanding(false);
  m_tabs->setFocusPolicy(Qt::NoFocus);
  m_canvas->setObjectName(QStringLiteral("canvas"));
  m_canvas->setFocusProxy(&m_panel->edit());

  auto* upper = new QWidget(this);
  auto* layout = new QVBoxLayout(upper);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_tabs);
  layout->addWidget(m_canvas, 1);
  auto* splitter = new QSplitter(Qt::Vertical, this);
  splitter->addWidget(upper);
  splitter->addWidget(m_panel);
  splitter->setStretchFactor(0, 1);
  splitter->setCollapsible(0, false);
  splitter->setSizes({620, 140});
  setCentralWidget(splitter);
  setDockOptions(AnimatedDocks | AllowTabbedDocks);
  // Panels at the sides reach down to the command line's lower edge.
  for (const auto& [corner, area] : {std::pair(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea),
                                     std::pair(Qt::BottomRightCorner, Qt::RightDockWidgetArea)})
    setCorner(corner, area);
  buildStatusBar();

  connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
    if (m_fillingTabs || index < 0) return;
    auto* document = documentOfTab(*m_tabs, index);
    m_feed.whenIdle([document] { acDocManager->activateDocument(document); });
  });
  connect(m_tabs, &QTabBar::tabCloseRequested, this, [this](int index) {
    auto* document = documentOfTab(*m_tabs, index);
    m_feed.whenIdle([this, document] {
      if (acDocManager->activateDocument(document) == Acad::eOk) m_feed.submit(L"CLOSE");
    });
  });
  m_canvas->cursorMoved = [this](const AcGePoint3d& at) { showCursor(at); };
  m_canvas->menuWanted = [this](const QPoint& at) { showCanvasMenu(at); };
  setDarkCanvas(m_settings.value(QStringLiteral("darkCanvas"), true).toBool());
  restoreGeometry(m_settings.value(QStringLiteral("geometry")).toByteArray());
  m_panel->edit().setFocus();
  m_panel->edit().installEventFilter(this);
  acDocManager->addReactor(this);
}

MainWindow::~MainWindow() {
  acDocManager->removeReactor(this);
  m_canvas->setDocument(nullptr);
}

void MainWindow::saveState() {
  m_settings.setValue(QStringLiteral("geometry"), saveGeometry());
}

void MainWindow::setDarkCanvas(bool dark) {
  m_settings.setValue(QStringLiteral("darkCanvas"), dark);
  m_canvas->setColors(dark ? DarkCanvas() : LightCanvas());
}

void MainWindow::runLines(std::initializer_list<const wchar_t*> lines) {
  m_feed.whenIdle([this, all = std::vector<CString>(lines.begin(), lines.end())] {
    for (const CString& line : all) m_feed.submit(line);
  });
}

void MainWindow::openFile(const CString& path) {
  m_feed.whenIdle([path] { acedCommandTexts({L"OPEN", path}); });
}

// The command asks about what is not saved.
void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  runLines({L"QUIT"});
}

// --- what the editor shows

void MainWindow::show(const CString& text, Tone tone) {
  m_panel->show(text, tone);
}

void MainWindow::promptOpened(const CString& prompt) {
  m_panel->promptOpened(prompt);
  followDrawing();
}

void MainWindow::followDrawing() {
  m_canvas->refresh();
  refreshTabs();
  refreshStatus();
}

EdBoxResult MainWindow::ask(const EdMessageBox& box) {
  if (const auto button = ScriptedAnswer(box)) return {*button, true};
  return ShowEditorBox(this, box);
}

bool MainWindow::showTask(const CString& task, double done) {
  return m_task->tell(ToQt(task), done);
}

void MainWindow::endTask() {
  m_task->end();
}

void MainWindow::redraw() {
  m_canvas->refresh(true);
}

void MainWindow::redrawOverlay() {
  m_canvas->update();
}

void MainWindow::viewMoved() {
  m_canvas->viewMoved();
}

EntityWatcher* MainWindow::entityWatcher() {
  return m_canvas->ahead();
}

std::optional<double> MainWindow::aspect() {
  if (m_canvas->height() <= 0) return std::nullopt;
  return static_cast<double>(m_canvas->width()) / m_canvas->height();
}

std::optional<double> MainWindow::pickAperture() {
  return m_canvas->pickAperture();
}

// --- documents

void MainWindow::documentCreated(AcApDocument* document) {
  if (document->isNamed()) m_recent->add(document->fileName());
  refreshTabs();
}

void MainWindow::documentToBeDestroyed(AcApDocument* document) {
  if (curDoc() == document) m_canvas->setDocument(nullptr);
}

void MainWindow::documentDestroyed(const wchar_t*) {
  refreshTabs();
}

void MainWindow::documentBecameCurrent(AcApDocument* document) {
  m_canvas->setDocument(document);
  refreshTabs();
  refreshStatus();
}

void MainWindow::documentTitleUpdated(AcApDocument* document) {
  if (document->isNamed()) m_recent->add(document->fileName());
  refreshTabs();
}

void MainWindow::refreshTabs() {
  m_fillingTabs = true;
  const std::unique_ptr<AcApDocumentIterator> documents(acDocManager->newAcApDocumentIterator());
  int index = 0;
  for (; !documents->done(); documents->step(), ++index) {
    auto* document = documents->document();
    if (index == m_tabs->count()) m_tabs->addTab(QString());
    const bool changed = document->database()->isModified();
    const QString title = Plain(document->docTitle()) + (changed ? QStringLiteral(" *") : QString());
    if (m_tabs->tabText(index) != title) m_tabs->setTabText(index, title);
    m_tabs->setTabToolTip(index, Shown(document->fileName()));
    m_tabs->setTabData(index, QVariant::fromValue(static_cast<void*>(document)));
    if (document == curDoc()) m_tabs->setCurrentIndex(index);
  }
  while (m_tabs->count() > index) m_tabs->removeTab(m_tabs->count() - 1);
  m_fillingTabs = false;
  const auto* current = curDoc();
  setWindowTitle(current ? Shown(current->docTitle()) + QStringLiteral(" - zpcad") : QStringLiteral("zpcad"));
}

} // namespace desktop
