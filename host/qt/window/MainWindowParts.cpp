// Menus, status bar and keys of the main window.
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdSession.h"
#include "host/ed/ObjectSnap.h"
#include "host/ed/SystemVariables.h"
#include "host/qt/QtText.h"
#include "host/qt/Theme.h"
#include "host/qt/canvas/Canvas.h"
#include "host/qt/window/CommandEdit.h"
#include "host/qt/window/CommandPanel.h"
#include "host/qt/window/HostMenus.h"
#include "host/qt/window/MainWindow.h"
#include "host/qt/window/PromptMenu.h"
#include "host/qt/window/RecentFiles.h"
#include "host/qt/window/TaskBar.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QToolButton>

namespace desktop {

void MainWindow::buildMenus() {
  menuBar()->clear();
  QMenu* menu = nullptr;
  const wchar_t* open = nullptr;
  const auto add = [&](const CString& title, const CString& command) {
    QAction* action = menu->addAction(Plain(title));
    action->setStatusTip(ToQt(command));
    return action;
  };
  const auto endMenu = [&] {
    if (open && std::wstring_view(open).starts_with(L"文件")) {
      menu->insertMenu(menu->actions().last(), m_recent);
      menu->insertSeparator(menu->actions().last());
    }
    if (open && std::wstring_view(open).starts_with(L"视图")) {
      menu->addSeparator();
      QAction* dark = menu->addAction(QStringLiteral("深色背景"));
      dark->setCheckable(true);
      dark->setChecked(m_settings.value(QStringLiteral("darkCanvas"), true).toBool());
      connect(dark, &QAction::toggled, this, [this](bool on) { setDarkCanvas(on); });
    }
  };
  for (const HostMenuRow& row : HostMenus()) {
    if (!open || CString(open) != row.menu) {
      endMenu();
      if (CString(row.menu).View().starts_with(L"帮助"))
        for (const ed::MenuGroup& group : m_titles.plugInMenus()) {
          menu = menuBar()->addMenu(Plain(group.title));
          for (const ed::MenuEntry& entry : group.entries)
            connect(add(entry.title, entry.command), &QAction::triggered, this,
                    [this, name = entry.command] { runLines({name}); });
        }
      menu = menuBar()->addMenu(ToQt(row.menu));
      open = row.menu;
    }
    if (!row.command) {
      menu->addSeparator();
      continue;
    }
    if (!acedCommandStack()->lookupCmd(row.command)) continue;
    QAction* action = add(row.title ? CString(row.title) : m_titles.title(row.command), row.command);
    if (row.shortcut) action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
    connect(action, &QAction::triggered, this, [this, &row] {
      if (row.answer)
        runLines({row.command, row.answer});
      else
        runLines({row.command});
    });
  }
}

void MainWindow::buildStatusBar() {
  m_coordinates = new QLabel(this);
  m_coordinates->setObjectName(QStringLiteral("coordinates"));
  QFont font = m_coordinates->font();
  if (const QString family = MonospaceFamily(); !family.isEmpty()) font.setFamily(family);
  m_coordinates->setFont(font);
  m_coordinates->setMinimumWidth(
      QFontMetrics(font).horizontalAdvance(QStringLiteral("-0000000.0000, -0000000.0000")));
  m_layer = new QLabel(this);
  m_layer->setObjectName(QStringLiteral("layer"));
  const auto addToggle = [this](const QString& text, const QString& tip, const wchar_t* variable, long bit) {
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setToolTip(tip);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, variable, bit] { toggle(variable, bit); });
    statusBar()->addPermanentWidget(button);
    return button;
  };
  statusBar()->addWidget(m_coordinates);
  m_task = new TaskBar(this);
  statusBar()->addWidget(m_task);
  m_snap = addToggle(QStringLiteral("对象捕捉"), QStringLiteral("对象捕捉（F3）"), L"OSMODE", ed::kSnapOff);
  m_ortho = addToggle(QStringLiteral("正交"), QStringLiteral("正交（F8）"), L"ORTHOMODE", 1);
  statusBar()->addPermanentWidget(m_layer);
  statusBar()->setSizeGripEnabled(true);
  refreshStatus();
}

void MainWindow::refreshStatus() {
  const auto* document = curDoc();
  const auto* layer =
      document ? AcDbSymbolTableRecord::cast(document->database()->clayer().object()) : nullptr;
  m_layer->setText(document ? QStringLiteral("图层：") + Shown(layer ? layer->name() : CString(L"0"))
                            : QString());
  m_snap->setChecked(!(SystemVariables::integer(L"OSMODE") & ed::kSnapOff));
  m_ortho->setChecked(SystemVariables::integer(L"ORTHOMODE") != 0);
  m_ortho->setEnabled(document != nullptr);
}

void MainWindow::showCursor(const AcGePoint3d& at) {
  m_coordinates->setText(QStringLiteral("%1, %2").arg(at.x, 0, 'f', 4).arg(at.y, 0, 'f', 4));
}

void MainWindow::toggle(const wchar_t* variable, long bit) {
  SystemVariables::set(variable, SystemVariables::integer(variable) ^ bit);
  refreshStatus();
  m_canvas->refresh();
}

void MainWindow::showCanvasMenu(const QPoint& at) {
  const auto& prompt = EdSession::instance().prompts().current();
  QMenu menu(this);
  const auto addLine = [&](const QString& title, const CString& line) {
    connect(menu.addAction(title), &QAction::triggered, this, [this, line] { m_feed.submit(line); });
  };
  if (prompt.wants == EdPromptState::Wants::command) {
    addLine(QStringLiteral("重复上一命令"), L"");
    menu.addSeparator();
    for (const wchar_t* command : {L"U", L"REDO", L"ERASE", L"MOVE", L"COPY", L"ROTATE", L"LIST"})
      addLine(Plain(m_titles.title(command)), command);
    menu.addSeparator();
    connect(menu.addAction(QStringLiteral("显示全部")), &QAction::triggered, this, [this] {
      runLines({L"ZOOM", L"A"});
    });
  } else {
    addLine(QStringLiteral("确定（回车）"), L"");
    addLine(QStringLiteral("取消（Esc）"), L"*cancel*");
    const auto options = PromptOptions(prompt.prompt);
    if (!options.empty()) menu.addSeparator();
    for (const auto& option : options) addLine(Plain(option.title), option.keyword);
  }
  menu.exec(at);
}

// Keys that no other part took are for the command line.
void MainWindow::keyPressEvent(QKeyEvent* event) {
  m_panel->edit().setFocus();
  m_panel->edit().takeKey(event);
}

// Function keys and the Delete key work wherever the cursor stands; Delete only where nothing is typed.
bool MainWindow::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    const bool pressed = event->type() == QEvent::KeyPress;
    if (key->key() == Qt::Key_F3 || key->key() == Qt::Key_F8) {
      if (pressed && key->key() == Qt::Key_F3) toggle(L"OSMODE", ed::kSnapOff);
      if (pressed && key->key() == Qt::Key_F8 && curDoc()) toggle(L"ORTHOMODE", 1);
      key->accept();
      return pressed;
    }
    if (!pressed && key->key() == Qt::Key_Escape) {
      auto* document = curDoc();
      if (document && EdSession::instance().commandDepth() == 0) {
        document->edit().pickFirst.clear();
        m_canvas->refresh();
      }
    }
  }
  return QMainWindow::eventFilter(object, event);
}

} // namespace desktop
