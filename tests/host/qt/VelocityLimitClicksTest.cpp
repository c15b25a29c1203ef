// The limits of flow velocity by clicks and keys.
#include "tests/host/qt/PlugInDialogs.h"

namespace {

class VelocityLimitClicks : public PlugInDialogs {
 protected:
  VelocityLimitClicks() {
    pipes::DestroyElements(table.m_arrLimits);
    for (const wchar_t* name : {L"20", L"25"}) {
      auto* limit = new CZPPipeLimit;
      limit->SetName(name);
      EXPECT_EQ(table.Add(limit), 1);
    }
  }
  ~VelocityLimitClicks() override { pipes::DestroyElements(table.m_arrLimits); }
  CString names() const {
    CString all;
    for (const CZPPipeLimit* limit : table.m_arrLimits)
      all += (all.IsEmpty() ? L"" : L" ") + limit->GetName();
    return all;
  }
  int manage(Steps steps) {
    return during([] { return ZP::ShowFVMngDlg(nullptr); }, std::move(steps));
  }
  CZPFlowVelocityMng& table = *CZPFlowVelocityMng::GetInstance();
};

TEST_F(VelocityLimitClicks, SortANewSizeIn) {
  EXPECT_EQ(manage({click("流速", 3, 0), [] { typeInto(*top()->focusWidget(), "1"); },
                    [] { typeInto(editor(), "5"); }, key(Qt::Key_Return), pressing("确定")}),
            IDOK);
  EXPECT_EQ(names(), L"15 20 25");
}

TEST_F(VelocityLimitClicks, GoFromCellToCellByTab) {
  manage({doubleClick("流速", 1, 1), [] { typeInto(editor(), "0.3"); }, key(Qt::Key_Tab),
          [] { typeInto(editor(), "0.8"); }, key(Qt::Key_Tab), key(Qt::Key_Escape)});
  EXPECT_EQ(table.m_arrLimits[0]->m_velocity.dbMin, 0.3);
  EXPECT_EQ(table.m_arrLimits[0]->m_velocity.dbMax, 0.8);
}

TEST_F(VelocityLimitClicks, AreToldWhatIsNoSizeAndWhatIsInAlready) {
  QString first, second;
  manage({doubleClick("流速", 3, 0), enterCell("DN25"), answer(first, "确定"), doubleClick("流速", 3, 0),
          enterCell("25"), answer(second, "确定"), key(Qt::Key_F2),
          [] { EXPECT_TRUE(editor().isVisible()) << "the cell has the keyboard"; }});
  EXPECT_EQ(first, QStringLiteral("输入字符串不满足要求，输入值必须为整型数据！"));
  EXPECT_EQ(second, QStringLiteral("当前管道已经[25]存在，请重新输入。"));
  EXPECT_EQ(names(), L"20 25");
}

TEST_F(VelocityLimitClicks, AreAskedBeforeASizeGoes) {
  QString told;
  manage({doubleClick("流速", 1, 0), enterCell(""), answer(told, "取消"), doubleClick("流速", 1, 0),
          enterCell(""), answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("当前字符串为空！删除不可恢复，确定要删除【20】吗?"));
  EXPECT_EQ(names(), L"25");
}

TEST_F(VelocityLimitClicks, CanNotOpenWhatIsReadOnly) {
  manage({doubleClick("流速", 3, 1),
          [] { EXPECT_FALSE(top()->findChild<QWidget*>(QStringLiteral("cellEditor"))); }});
}

} // namespace
