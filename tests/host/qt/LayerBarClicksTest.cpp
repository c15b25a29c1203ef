// The layer control bar beside the drawing, by clicks and keys.
#include "host/console/DialogInput.h"
#include "plugin/frame/DialogCommands.h"
#include "plugin/layers/OwnedNodes.h"
#include "plugin/layers/bar/LayerControlBar.h"
#include "plugin/layers/bar/LayerRows.h"
#include "plugin/layers/groups/CCADGroupLayer.h"
#include "plugin/layers/groups/CCADManagerLayer.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/support/WorkingDrawing.h"

#include <QContextMenuEvent>
#include <QDockWidget>
#include <QHeaderView>

namespace {

using namespace layers;

class LayerBarClicks : public PlugInDialogs {
 protected:
  LayerBarClicks() {
    DestroyNodes(manager.Groups());
    for (const wchar_t* name : {L"采暖供水", L"采暖回水"})
      WorkingDrawing::AddLayerTo(*curDoc()->database(), name);
    auto* group = new CCADGroupLayer;
    group->SetName(L"采暖");
    group->Layers.Add(L"采暖回水");
    EXPECT_EQ(manager.Add(group), 1);
    acedRegCmds->addCommand(L"TEST", L"KOR_CADTCKZ", L"KOR_CADTCKZ", ACRX_CMD_MODAL, ::dialogs::LayerControl);
  }
  ~LayerBarClicks() override {
    DestroyControlBar();
    DestroyNodes(manager.Groups());
  }
  QDockWidget& dock() {
    return *window->findChild<QDockWidget*>(QStringLiteral("{0C9C3FC0-7192-4B0D-BE17-7AB24AAFCFF0}"));
  }
  QTableView& table() { return *dock().findChild<QTableView*>(QStringLiteral("图层")); }
  void click(int row, int column) {
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, cell(table(), row, column));
  }
  // Right-clicks there and goes down that many commands of the menu.
  void choose(const QPoint& at, int downs) {
    QTimer::singleShot(20, [downs] {
      auto* popup = QApplication::activePopupWidget();
      ASSERT_TRUE(popup);
      for (int i = 0; i < downs; ++i) QTest::keyClick(popup, Qt::Key_Down);
      QTest::keyClick(popup, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, table().viewport()->mapToGlobal(at));
    QApplication::sendEvent(table().viewport(), &event);
  }
  const AcDbLayerTableRecord& layer(const wchar_t* name) {
    return *static_cast<const AcDbLayerTableRecord*>(
        WorkingDrawing::LayerOf(*curDoc()->database(), name).object());
  }
  CCADManagerLayer& manager = *CCADManagerLayer::GetInstance();
};

TEST_F(LayerBarClicks, SwitchLayers) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         EXPECT_EQ(dock().windowTitle(), QStringLiteral("当前CAD图纸图层管理"));
         EXPECT_EQ(window->dockWidgetArea(&dock()), Qt::LeftDockWidgetArea);
         EXPECT_TRUE(table().horizontalHeader()->isHidden());
         EXPECT_FALSE(table().showGrid());
         click(1, kOffColumn);
         click(2, kFrozenColumn);
         click(1, kLockedColumn);
         click(0, kFrozenColumn);
         click(0, kNameColumn);
       },
       [&] {
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_TRUE(layer(L"采暖供水").isLocked());
         EXPECT_TRUE(layer(L"采暖回水").isFrozen());
         EXPECT_FALSE(layer(L"0").isFrozen()) << "the current layer";
         EXPECT_EQ(said().find("regen"), std::string::npos);
         click(2, kFrozenColumn);
       },
       [&] {
         EXPECT_FALSE(layer(L"采暖回水").isFrozen());
         EXPECT_NE(said().find("regen"), std::string::npos);
       }});
}

TEST_F(LayerBarClicks, AreTakenBackOneByOne) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         click(1, kOffColumn);
         click(2, kLockedColumn);
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_TRUE(layer(L"采暖回水").isLocked());
         enter("U");
       },
       [&] {
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_FALSE(layer(L"采暖回水").isLocked());
         EXPECT_NE(said().find("已放弃 图层开关、冻结或锁定"), std::string::npos);
         enter("U");
       },
       [&] { EXPECT_FALSE(layer(L"采暖供水").isOff()); }});
}

TEST_F(LayerBarClicks, TakeBackACommandForAllRowsAtOnce) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         choose(cell(table(), 0, kLockedColumn), 5);
         EXPECT_TRUE(layer(L"采暖供水").isLocked());
         EXPECT_TRUE(layer(L"采暖回水").isLocked());
         enter("U");
       },
       [&] {
         EXPECT_FALSE(layer(L"采暖供水").isLocked());
         EXPECT_FALSE(layer(L"采暖回水").isLocked());
         EXPECT_NE(said().find("已放弃 全部锁定"), std::string::npos);
       }});
}

TEST_F(LayerBarClicks, ShowAPictureForEachState) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         const auto icon = [&] {
           const QModelIndex index = table().model()->index(1, kOffColumn);
           return index.data(Qt::DecorationRole).value<QPixmap>().toImage();
         };
         const QImage on = icon();
         EXPECT_FALSE(on.isNull());
         click(1, kOffColumn);
         EXPECT_NE(icon(), on);
         const QModelIndex name = table().model()->index(1, kOffColumn);
         EXPECT_EQ(name.data(Qt::ToolTipRole).toString(), QStringLiteral("关"));
         const QModelIndex swatch = table().model()->index(1, kColourColumn);
         EXPECT_EQ(swatch.data(Qt::BackgroundRole).value<QBrush>().color(), QColor(Qt::white)) << "colour 7";
       }});
}

TEST_F(LayerBarClicks, LeaveTheKeyboardToTheCommandLine) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         table().setFocus();
         click(1, kLockedColumn);
         EXPECT_TRUE(edit().hasFocus());
       }});
}

TEST_F(LayerBarClicks, ChooseAGroupAndACommandForItsRows) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         auto& sources = *dock().findChild<QComboBox*>(QStringLiteral("图层分组"));
         sources.setFocus();
         QTest::keyClick(&sources, Qt::Key_Down);
         EXPECT_EQ(table().model()->rowCount(), 1);
         choose(cell(table(), 0, kLockedColumn), 5);
         EXPECT_TRUE(layer(L"采暖回水").isLocked());
         choose(QPoint(table().viewport()->width() / 2, table().viewport()->height() - 4), 8);
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_FALSE(layer(L"采暖回水").isOff());
       }});
}

TEST_F(LayerBarClicks, MoveByKeysWithoutSwitching) {
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         table().setFocus();
         for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right}) QTest::keyClick(&table(), key);
         EXPECT_FALSE(layer(L"采暖供水").isOff());
         QTest::keyClick(&table(), Qt::Key_Space);
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_FALSE(layer(L"0").isOff());
       }});
}

TEST_F(LayerBarClicks, ShowInThePictureAtOnce) {
  dialogs = std::make_unique<desktop::DesktopDialogs>(*window, [this] { window->followDrawing(); });
  UiFrontEnd::Set(dialogs.get());
  look(400, 300, 600);
  {
    const auto id = WorkingDrawing::AppendTo(*curDoc()->database(), new AcDbLine({0, 300, 0}, {800, 300, 0}));
    const AcDbObjectPointer<AcDbEntity> line(id, AcDb::kForWrite);
    line->setLayer(L"采暖供水");
  }
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         canvas().refresh(true);
         const QImage before = canvas().grab().toImage();
         click(1, kOffColumn);
         EXPECT_NE(canvas().grab().toImage(), before);
       }});
}

TEST_F(LayerBarClicks, ReopenTheSameBarBehindItsCloseBox) {
  const QDockWidget* first = nullptr;
  run({[&] { enter("KOR_CADTCKZ"); },
       [&] {
         first = &dock();
         dock().close();
         EXPECT_FALSE(dock().isVisible());
       },
       [&] { enter("KOR_CADTCKZ"); },
       [&] {
         EXPECT_EQ(&dock(), first);
         EXPECT_TRUE(dock().isVisible()) << said();
       }});
}

TEST_F(LayerBarClicks, AreDoneByLinesToo) {
  frontEnd->barLine = [this](const CString& line) { return console::ObeyBarLine(dialogs->modeless(), line); };
  EdSession::instance().input().push(std::make_unique<EdScriptSource>(
      L"s.scr", "KOR_CADTCKZ\nbar click 图层 采暖供水 开关\nbar menu 图层 全部锁定\nID\n1,2\n"));
  run({[] {}, [&] { feed.submit(L"bar click 图层 1 锁定"); },
       [&] {
         EXPECT_TRUE(layer(L"采暖供水").isOff());
         EXPECT_TRUE(layer(L"采暖供水").isLocked());
         EXPECT_FALSE(layer(L"0").isLocked());
         EXPECT_NE(said().find("X = 1"), std::string::npos) << "behind the bar's lines";
         dock().close();
         feed.submit(L"bar show");
       },
       [&] { EXPECT_NE(said().find("没有打开的面板"), std::string::npos); }});
}

} // namespace
