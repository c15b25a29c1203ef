// The dialog of layer groups by clicks and keys.
#include "plugin/layers/OwnedNodes.h"
#include "plugin/layers/dialogs/CCADGroupLayerDlg.h"
#include "plugin/layers/groups/CCADGroupLayer.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/support/WorkingDrawing.h"

#include <QTreeWidget>

namespace {

class LayerGroupClicks : public PlugInDialogs {
 protected:
  LayerGroupClicks() {
    layers::DestroyNodes(manager.Groups());
    for (const wchar_t* name : {L"采暖供水", L"采暖回水"})
      WorkingDrawing::AddLayerTo(*curDoc()->database(), name);
  }
  ~LayerGroupClicks() override { layers::DestroyNodes(manager.Groups()); }
  int manage(Steps steps) {
    return during([] { return static_cast<int>(CCADGroupLayerDlg(nullptr).DoModal()); }, std::move(steps));
  }
  static QTreeWidget& tree() { return find<QTreeWidget>("当前图纸所有图层"); }
  static QTreeWidgetItem& item(const char* text) {
    const auto found = tree().findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
    if (found.size() != 1) throw std::runtime_error(std::string("no item ") + text);
    return *found[0];
  }
  // A click on the box before the text.
  static std::function<void()> tick(const char* text) {
    return [text] {
      const QRect rect = tree().visualItemRect(&item(text));
      QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, QPoint(rect.left() + 8, rect.center().y()));
    };
  }
  static std::function<void()> type(const char* text) {
    return [text] {
      typeInto(editor(), text);
      QTest::keyClick(&editor(), Qt::Key_Return);
    };
  }
  CString everything() const {
    CString text;
    for (const CCADGroupLayer* group : manager.Groups()) {
      text += group->GetName() + L"(";
      for (const CString& layer : group->Layers) text += layer + L" ";
      text += L")";
    }
    return text;
  }
  CCADManagerLayer& manager = *CCADManagerLayer::GetInstance();
};

TEST_F(LayerGroupClicks, MakeAGroupOfTickedLayers) {
  manage({tick("采暖供水"), tick("采暖回水"), pressing("新建"), type("采暖"), pressing("退出")});
  EXPECT_EQ(everything(), L"采暖(采暖供水 采暖回水 )");
  EXPECT_TRUE(install.Has("Data/CadLayerGroup.idp"));
}

TEST_F(LayerGroupClicks, ShowAndChangeTheLayersOfAGroup) {
  manage({tick("采暖供水"), pressing("新建"), type("采暖"), tick("采暖供水"), click("分组", 0, 1),
          [] {
            EXPECT_EQ(item("采暖供水").checkState(0), Qt::Checked);
            EXPECT_EQ(item("采暖回水").checkState(0), Qt::Unchecked);
          },
          tick("全部图层"), pressing("修改"),
          [] { EXPECT_EQ(item("采暖回水").checkState(0), Qt::Checked) << "the top ticks all below it"; }});
  EXPECT_EQ(everything(), L"采暖(0 采暖供水 采暖回水 )");
}

TEST_F(LayerGroupClicks, AreToldWhatIsNoName) {
  QString first, second;
  manage({pressing("新建"), [] { QTest::keyClick(&editor(), Qt::Key_Return); }, answer(first, "确定"),
          type("采暖"), pressing("新建"), type("采暖"), answer(second, "确定"),
          [] { EXPECT_TRUE(editor().isVisible()); }});
  EXPECT_EQ(first, QStringLiteral("图层组名称为空字串符，请重新输入!"));
  EXPECT_EQ(second, QStringLiteral("【采暖】已经存在，请重新输入图层组名称！"));
  EXPECT_EQ(everything(), L"采暖()") << "the close box dropped what had no name";
}

TEST_F(LayerGroupClicks, AreAskedBeforeAGroupGoes) {
  QString told;
  manage({pressing("新建"), type("采暖"), pressing("删除"), answer(told, "取消"), pressing("删除"),
          answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("删除不可恢复，确定要删除【采暖】吗?"));
  EXPECT_EQ(everything(), L"");
}

TEST_F(LayerGroupClicks, RenameAGroupWithF2AndGiveUpWithEscape) {
  manage({pressing("新建"), type("采暖"), click("分组", 0, 1), key(Qt::Key_F2),
          [] { typeInto(editor(), "x"); }, [] { QTest::keyClick(&editor(), Qt::Key_Escape); },
          [] { EXPECT_EQ(shown("分组", 0, 1), QStringLiteral("采暖")); }, key(Qt::Key_F2), type("给水"),
          key(Qt::Key_Escape)});
  EXPECT_EQ(everything(), L"给水()");
}

} // namespace
