// The tree of the layer manager and its menu.
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"

namespace {

using namespace dialogtest;

class SchemeTreeMenu : public LayerManagerFixture {
 protected:
  static CString Identifiers(const Dlg& dialog) {
    CString text;
    for (int row = 1; row < dialog.m_grid.GetRowCount(); ++row)
      text += dialog.m_grid.GetItemText(row, layers::kNumberColumn) +
              dialog.m_grid.GetItemText(row, layers::kIdentifierColumn) + L" ";
    return text;
  }
};

TEST_F(SchemeTreeMenu, StandsBesideTheLayersBelowTheSelectedNode) {
  In([](Dlg& dialog) {
    Select(dialog, L"空调水路");
    EXPECT_EQ(Identifiers(dialog), L"1供水干管 2回水干管 3风机盘管 ");
    Select(dialog, L"管线");
    EXPECT_EQ(Identifiers(dialog), L"1供水干管 2回水干管 ");
    Select(dialog, L"采暖");
    EXPECT_EQ(Identifiers(dialog), L"1采暖供水 ");
    Select(dialog, L"全部图层");
    EXPECT_EQ(Identifiers(dialog), L"1供水干管 2回水干管 3风机盘管 4采暖供水 ");
  });
}

TEST_F(SchemeTreeMenu, SelectsTheNodeUnderARightClickFirst) {
  In([](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.m_tree.UserOpenMenu(Node(dialog, L"设备")));
    EXPECT_EQ(Tree(dialog), L"全部图层(空调水路(管线 >设备) 采暖(采暖管线))");
    EXPECT_EQ(Identifiers(dialog), L"1风机盘管 ");
  });
}

TEST_F(SchemeTreeMenu, OffersWhatFitsTheNode) {
  In([&](Dlg& dialog) {
    const auto texts = [&](const wchar_t* node) {
      EXPECT_TRUE(dialog.m_tree.m_tree.UserOpenMenu(Node(dialog, node)));
      return Texts(dialog.m_tree.m_tree.Menu);
    };
    EXPECT_EQ(texts(L"全部图层"), L"新建分类 新建分组 重命名");
    EXPECT_EQ(texts(L"采暖"), L"新建分类 新建分组 删除分类 重命名");
    EXPECT_EQ(texts(L"设备"), L"新建分类 新建分组 删除分组 重命名");
    scheme.Categories()[1]->SetAllowModify(false);
    EXPECT_EQ(texts(L"采暖"), L"新建分类 新建分组 删除分类 -重命名");
  });
}

TEST_F(SchemeTreeMenu, MakesACategoryAtTheRootAndAtACategory) {
  In([&](Dlg& dialog) {
    WillName(L"新建分类", L" 通风 ");
    EXPECT_TRUE(NodeMenu(dialog, L"全部图层", L"新建分类"));
    WillName(L"新建分类", L"防排烟");
    EXPECT_TRUE(NodeMenu(dialog, L"采暖", L"新建分类"));
    EXPECT_EQ(Tree(dialog), L"全部图层(空调水路(管线 设备) >采暖(采暖管线) 通风 防排烟)");
    ASSERT_EQ(scheme.Categories().GetSize(), 4);
    EXPECT_EQ(scheme.Categories()[2]->GetName(), L"通风");
    EXPECT_TRUE(scheme.Categories()[2]->IsAllowModify());
    EXPECT_EQ(scheme.Categories()[2]->GetParent(), &scheme);
  });
}

TEST_F(SchemeTreeMenu, MakesACategoryOfTheNodesNameWhereTheUserGivesUp) {
  In([&](Dlg& dialog) {
    WillGiveUp(L"新建分类");
    EXPECT_TRUE(NodeMenu(dialog, L"采暖", L"新建分类"));
    EXPECT_EQ(Tree(dialog), L"全部图层(空调水路(管线 设备) >采暖(采暖管线) 采暖)");
    WillGiveUp(L"新建分类");
    EXPECT_TRUE(NodeMenu(dialog, L"全部图层", L"新建分类"));
    EXPECT_EQ(scheme.Categories()[3]->GetName(), L"全部图层");
  });
}

TEST_F(SchemeTreeMenu, AsksForACategorysNameAtAGroupAndMakesNone) {
  In([&](Dlg& dialog) {
    WillName(L"新建分类", L"通风");
    EXPECT_TRUE(NodeMenu(dialog, L"设备", L"新建分类"));
    WillGiveUp(L"新建分类");
    EXPECT_TRUE(NodeMenu(dialog, L"设备", L"新建分类"));
    EXPECT_TRUE(frontEnd.runs.empty()) << "it was asked for twice";
    EXPECT_EQ(scheme.Categories().GetSize(), 2);
  });
}

TEST_F(SchemeTreeMenu, MakesAGroupAtACategoryAndBesideAGroup) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(dialog.m_tree.m_tree.UserExpand(Node(dialog, L"采暖"), false));
    WillName(L"新建分组", L" 标注 ");
    EXPECT_TRUE(NodeMenu(dialog, L"采暖", L"新建分组"));
    EXPECT_TRUE(Node(dialog, L"采暖")->expanded) << "what is new can be seen";
    WillName(L"新建分组", L"阀门");
    EXPECT_TRUE(NodeMenu(dialog, L"管线", L"新建分组"));
    EXPECT_EQ(Tree(dialog), L"全部图层(空调水路(>管线 设备 阀门) 采暖(采暖管线 标注))");
    const CZPGroupLayer* made = scheme.Categories()[0]->Groups()[2];
    EXPECT_EQ(made->GetName(), L"阀门");
    EXPECT_TRUE(made->IsAllowModify());
    EXPECT_EQ(made->GetParent(), scheme.Categories()[0]);
  });
}

TEST_F(SchemeTreeMenu, MakesNoGroupWhereTheUserGivesUpOrAtTheRoot) {
  In([&](Dlg& dialog) {
    WillGiveUp(L"新建分组");
    EXPECT_TRUE(NodeMenu(dialog, L"采暖", L"新建分组"));
    WillName(L"新建分组", L"标注");
    EXPECT_TRUE(NodeMenu(dialog, L"全部图层", L"新建分组"));
    EXPECT_TRUE(frontEnd.runs.empty()) << "the name is asked for all the same";
    EXPECT_EQ(Tree(dialog), L">全部图层(空调水路(管线 设备) 采暖(采暖管线))");
  });
}

TEST_F(SchemeTreeMenu, AcceptsNamesThatAreTaken) {
  In([&](Dlg& dialog) {
    WillName(L"新建分组", L"管线");
    EXPECT_TRUE(NodeMenu(dialog, L"空调水路", L"新建分组"));
    WillName(L"重命名", L"采暖");
    EXPECT_TRUE(NodeMenu(dialog, L"空调水路", L"重命名"));
    EXPECT_EQ(Tree(dialog), L"全部图层(>采暖(管线 设备 管线) 采暖(采暖管线))");
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_EQ(scheme.Categories()[0]->Groups().GetSize(), 3) << "the file has room for both";
  EXPECT_EQ(scheme.Categories()[1]->GetName(), L"采暖");
}

TEST_F(SchemeTreeMenu, AsksBeforeANodeIsDeletedWithAllBelowIt) {
  In([&](Dlg& dialog) {
    EXPECT_TRUE(NodeMenu(dialog, L"设备", L"删除分组"));
    ASSERT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_EQ(frontEnd.boxes[0].caption, L"青岚提示");
    EXPECT_EQ(frontEnd.boxes[0].buttons.size(), 2u);
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[设备]吗？");
    EXPECT_TRUE(scheme.IsExist(L"风机盘管"));
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(NodeMenu(dialog, L"设备", L"删除分组"));
    EXPECT_EQ(Tree(dialog), L"全部图层(>空调水路(管线) 采暖(采暖管线))");
    EXPECT_EQ(Identifiers(dialog), L"1供水干管 2回水干管 ");
    frontEnd.boxes.clear();
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(NodeMenu(dialog, L"空调水路", L"删除分类"));
    EXPECT_EQ(frontEnd.takeBox(), L"删除不可恢复，确定要删除[空调水路]吗？");
    EXPECT_EQ(Tree(dialog), L">全部图层(采暖(采暖管线))");
    EXPECT_EQ(Identifiers(dialog), L"1采暖供水 ");
  });
}

TEST_F(SchemeTreeMenu, KeepsWhatMayNotBeChanged) {
  In([&](Dlg& dialog) {
    scheme.Categories()[0]->SetAllowModify(false);
    frontEnd.answers = {IDOK};
    EXPECT_TRUE(NodeMenu(dialog, L"空调水路", L"删除分类")) << "it asks first";
    EXPECT_EQ(frontEnd.boxes.size(), 1u);
    EXPECT_FALSE(NodeMenu(dialog, L"空调水路", L"重命名"));
    EXPECT_EQ(Tree(dialog), L"全部图层(>空调水路(管线 设备) 采暖(采暖管线))");
  });
}

TEST_F(SchemeTreeMenu, RenamesAnyNode) {
  In([&](Dlg& dialog) {
    for (const wchar_t* node : {L"全部图层", L"空调水路", L"管线"}) {
      frontEnd.runs.push_back([&](CDialog& asked) {
        auto& name = dynamic_cast<CZPRenameDlg&>(asked).m_name;
        EXPECT_EQ(name.GetText(), node);
        EXPECT_TRUE(name.UserType(CString(node) + L"2"));
        EXPECT_TRUE(asked.UserEnter());
      });
      EXPECT_TRUE(NodeMenu(dialog, node, L"重命名"));
    }
    WillGiveUp(L"重命名");
    EXPECT_TRUE(NodeMenu(dialog, L"设备", L"重命名"));
    EXPECT_EQ(Tree(dialog), L"全部图层2(空调水路2(管线2 >设备) 采暖(采暖管线))");
    EXPECT_EQ(scheme.GetName(), L"全部图层2");
    EXPECT_EQ(scheme.Categories()[0]->Groups()[0]->GetName(), L"管线2");
  });
  scheme.SetName(L"全部图层");
}

TEST_F(SchemeTreeMenu, OffersNothingBesideATreeWithoutASelection) {
  In([](Dlg& dialog) {
    dialog.m_tree.m_tree.SelectItem(nullptr);
    EXPECT_TRUE(dialog.m_tree.m_tree.UserOpenMenu(nullptr));
    EXPECT_TRUE(dialog.m_tree.m_tree.Menu.Items().empty());
    EXPECT_FALSE(dialog.m_tree.m_tree.Menu.UserChoose(layers::SchemeTree::rename));
  });
}

} // namespace
