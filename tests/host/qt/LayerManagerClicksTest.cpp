// The layer manager by clicks and keys.
#include "plugin/base/NumberText.h"
#include "plugin/layers/dialogs/CZPLayerManagerDlg.h"
#include "plugin/layers/dialogs/LayerColumns.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/host/qt/SmallScheme.h"
#include "tests/support/WorkingDrawing.h"

#include <QScrollBar>
#include <QTreeWidget>

namespace {

constexpr const char* kTable = "图层列表";

class LayerManagerClicks : public PlugInDialogs {
 protected:
  int manage(Steps steps) {
    return during([] { return CZPLayerManagerDlg().DoModal(); }, std::move(steps));
  }
  static QTreeWidget& tree() { return find<QTreeWidget>("图层分组"); }
  static QPoint node(const char* text) {
    const auto found = tree().findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QPoint(-1, -1) : tree().visualItemRect(found[0]).center();
  }
  static std::function<void()> clickNode(const char* text) {
    return [text] { QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, node(text)); };
  }
  static std::function<void()> nodeMenu(const char* text, const char* command) {
    return [=] { chooseFromMenu(tree(), node(text), command); };
  }
  static std::function<void()> rowMenu(int row, const char* command) {
    return [=] { chooseFromMenu(kTable, row, command); };
  }
  // In the dialog that asks for a name.
  static std::function<void()> name(const char* label, const char* text) {
    return [=] {
      retype(find<QLineEdit>(label), text);
      QTest::keyClick(&find<QLineEdit>(label), Qt::Key_Return);
    };
  }
  CZPLayer* layer(const wchar_t* identifier) { return scheme.GetLayer(identifier); }
  SmallScheme small;
  CZPManagerLayer& scheme = small.scheme;
};

TEST_F(LayerManagerClicks, EditANameAndSaveItByOk) {
  EXPECT_EQ(IDOK, manage({doubleClick(kTable, 1, layers::kNameColumn), enterCell("热水"), pressing("确定")}));
  EXPECT_EQ(layer(L"供水")->GetUserLayer(), L"热水");
}

TEST_F(LayerManagerClicks, DropAnEditByTheCloseBox) {
  manage({doubleClick(kTable, 1, layers::kNameColumn), enterCell("热水"),
          [this] { EXPECT_EQ(layer(L"供水")->GetUserLayer(), L"热水"); }});
  EXPECT_EQ(layer(L"供水")->GetUserLayer(), L"暖通-供水");
}

TEST_F(LayerManagerClicks, ChooseAColourByOneClickAndByKeys) {
  QString chosen;
  manage({click(kTable, 1, layers::kColourColumn), [] { pressText("ByBlock（随块）"); },
          [&] { chosen = top()->windowTitle(); }, [] { pressText("确定"); },
          [this] { EXPECT_EQ(layer(L"供水")->GetColorIndex(), 0); }, click(kTable, 2, layers::kNameColumn),
          key(Qt::Key_Right), [] { EXPECT_EQ(top()->objectName().left(5), QStringLiteral("图层管理器")); },
          key(Qt::Key_Return), [] { pressText("ByBlock（随块）"); }, [] { pressText("确定"); },
          pressing("确定")});
  EXPECT_EQ(chosen, QStringLiteral("选择颜色"));
  EXPECT_EQ(layer(L"回水")->GetColorIndex(), 0);
}

TEST_F(LayerManagerClicks, ChooseALineWeight) {
  manage({click(kTable, 1, layers::kLineWeightColumn),
          [] { clickEntry(*top()->findChild<QListWidget*>(), "0.30 mm"); }, [] { pressText("确定"); },
          pressing("确定")});
  EXPECT_EQ(layer(L"供水")->GetLineWeight(), 0.3);
}

TEST_F(LayerManagerClicks, MakeAGroupWithALayerByTheMenus) {
  manage({nodeMenu("采暖", "新建分组"), name("名称：", "标注"), clickNode("标注"),
          [] {
            auto& table = find<QTableView>(kTable);
            chooseFromMenu(table, QPoint(10, table.viewport()->height() - 10), "新建图层");
          },
          [] { EXPECT_EQ(shown(kTable, 1, layers::kIdentifierColumn), QStringLiteral("Layer1")); },
          pressing("确定")});
  ASSERT_EQ(scheme.Categories()[0]->Groups().GetSize(), 2);
  EXPECT_EQ(scheme.Categories()[0]->Groups()[1]->GetName(), L"标注");
  EXPECT_NE(layer(L"Layer1"), nullptr);
}

TEST_F(LayerManagerClicks, SeeAllColumnsWhateverNodeIsSelected) {
  for (int i = 0; i < 60; ++i) small.Add(CString(L"标识") + ZP::itoa(i), L"图层");
  auto* group = new CZPGroupLayer;
  group->SetName(L"空组");
  scheme.Categories()[0]->Add(group);
  const auto allInView = [] { EXPECT_EQ(find<QTableView>(kTable).horizontalScrollBar()->maximum(), 0); };
  const auto settle = [] { QTest::qWait(50); };
  manage({settle, allInView, clickNode("空组"), settle, allInView, clickNode("管线"), settle, allInView});
}

TEST_F(LayerManagerClicks, AreToldThatANameIsMissing) {
  QString told;
  manage({nodeMenu("管线", "重命名"), name("名称：", "  "), answer(told, "确定"), name("名称：", "水管"),
          pressing("确定")});
  EXPECT_EQ(told, QStringLiteral("命称不能为空字符串，请重新输入。"));
  EXPECT_EQ(scheme.Categories()[0]->Groups()[0]->GetName(), L"水管");
}

TEST_F(LayerManagerClicks, PickALayerInTheDrawing) {
  WorkingDrawing::AddLayerTo(*curDoc()->database(), L"建筑");
  const AcDbObjectId id =
      WorkingDrawing::AppendTo(*curDoc()->database(), new AcDbLine({0, 300, 0}, {800, 300, 0}));
  {
    const AcDbObjectPointer<AcDbEntity> line(id, AcDb::kForWrite);
    line->setLayer(L"建筑");
  }
  look(400, 300, 600);
  bool aside = false;
  manage({[&] {
            QTimer::singleShot(200, [&] {
              aside = !top();
              Desktop::click(400, 300);
            });
            chooseFromMenu(kTable, 1, "从图中选取");
          },
          pressing("确定")});
  EXPECT_TRUE(aside);
  EXPECT_EQ(layer(L"供水")->GetUserLayer(), L"建筑");
  EXPECT_EQ(layer(L"供水")->GetLineWeight(), -0.01);
}

TEST_F(LayerManagerClicks, PasteIntoRowsSelectedWithCtrl) {
  manage({doubleClick(kTable, 1, layers::kNameColumn), enterCell("热水"), rowMenu(1, "复制"),
          [] {
            auto& table = find<QTableView>(kTable);
            for (const int row : {1, 2})
              QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                                cell(table, row, layers::kColourColumn));
            EXPECT_EQ(top()->objectName().left(5), QStringLiteral("图层管理器")) << "no chooser opens";
          },
          rowMenu(2, "粘贴"), pressing("确定")});
  EXPECT_EQ(layer(L"回水")->GetUserLayer(), L"热水");
}

TEST_F(LayerManagerClicks, ChangeTickedValuesOfSeveralLayers) {
  manage({click(kTable, 1, layers::kNumberColumn),
          [] {
            auto& table = find<QTableView>(kTable);
            QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                              cell(table, 2, layers::kNumberColumn));
          },
          rowMenu(2, "批量修改"),
          [] {
            auto* name = top()->findChild<QTreeWidget*>()->topLevelItem(0)->child(0);
            EXPECT_EQ(name->checkState(0), Qt::Checked);
            name->setCheckState(0, Qt::Unchecked);
          },
          [] {
            retype(find<QLineEdit>("图层备注"), "成批");
            QTest::keyClick(&find<QLineEdit>("图层备注"), Qt::Key_Tab);
          },
          pressing("修改"), pressing("确定")});
  EXPECT_EQ(layer(L"供水")->GetRemarks(), L"成批");
  EXPECT_EQ(layer(L"回水")->GetRemarks(), L"成批");
  EXPECT_EQ(layer(L"供水")->GetUserLayer(), L"暖通-供水");
}

TEST_F(LayerManagerClicks, AddRenameAndDeleteASchemeWithAFailureInBetween) {
  QString failed, asked;
  manage({pressing("添加"), name("方案名称：", "二期"),
          [] { EXPECT_EQ(find<QComboBox>("当前方案").currentText(), QStringLiteral("二期")); },
          pressing("重命名"), name("名称：", "默认方案"), answer(failed, "确定"), pressing("重命名"),
          name("名称：", "三期"),
          [] { EXPECT_EQ(find<QComboBox>("当前方案").currentText(), QStringLiteral("三期")); },
          pressing("删除"), answer(asked, "确定"),
          [] { EXPECT_FALSE(find<QPushButton>("删除").isEnabled()); }});
  EXPECT_TRUE(failed.contains(QStringLiteral("已有同名的文件"))) << failed.toStdString();
  EXPECT_EQ(asked, QStringLiteral("删除不可恢复，确定要删除【三期】吗？"));
  EXPECT_EQ(scheme.GetPlanName(), L"默认方案");
}

} // namespace
