// The manager of pipe materials by clicks and keys.
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tests/host/qt/PlugInDialogs.h"

namespace {

// The buttons of the diameters have the names of those of the materials, and come behind them.
constexpr int kOfDiameters = 1;

class PipeManagerClicks : public PlugInDialogs {
 protected:
  PipeManagerClicks() {
    pipes::DestroyElements(catalogue.m_arrMaterials);
    steel = add(L"镀锌钢管");
    SZPPipeDNData small(15, 21.3, 15.7), large(20, 26.8, 21.2);
    steel->m_arrDNData.Add(small);
    steel->m_arrDNData.Add(large);
    add(L"PPR");
  }
  ~PipeManagerClicks() override { pipes::DestroyElements(catalogue.m_arrMaterials); }
  CZPPipeMaterial* add(const wchar_t* name) {
    auto* material = new CZPPipeMaterial;
    material->SetName(name);
    EXPECT_TRUE(catalogue.Add(material));
    return material;
  }
  CString names() const {
    CString all;
    for (const CZPPipeMaterial* material : catalogue.m_arrMaterials)
      all += (all.IsEmpty() ? L"" : L" ") + material->GetName();
    return all;
  }
  int manage(Steps steps) {
    return during([] { return ZP::ShowPipeMaterialDlg(nullptr); }, std::move(steps));
  }
  CZPPipeMaterialManager& catalogue = *CZPPipeMaterialManager::GetInstance();
  CZPPipeMaterial* steel = nullptr;
};

TEST_F(PipeManagerClicks, EditADiameter) {
  QString thickness, sample;
  manage({click("管材管径", 0, 0), doubleClick("管径", 0, 1), enterCell("22"), [&] {
            thickness = shown("管径", 0, 3);
            sample = find<QLineEdit>("标注示例：").text();
          }});
  EXPECT_EQ(steel->m_arrDNData[0].dbOuter, 22);
  EXPECT_EQ(thickness, QStringLiteral("3.15"));
  EXPECT_EQ(sample, QStringLiteral("DN15×3.15(T)"));
}

TEST_F(PipeManagerClicks, AreToldWhatIsNoDiameterAndStayInTheCell) {
  QString told;
  bool open = false;
  manage({click("管材管径", 0, 0), doubleClick("管径", 0, 1), enterCell("abc"), answer(told, "确定"),
          [&] { open = top()->focusWidget() == &editor(); }, key(Qt::Key_Escape)});
  EXPECT_EQ(told, QStringLiteral("输入值不能为零，请重新输入。"));
  EXPECT_TRUE(open);
  EXPECT_EQ(steel->m_arrDNData[0].dbOuter, 21.3);
}

TEST_F(PipeManagerClicks, AddMoveAndDeleteDiameters) {
  manage({click("管材管径", 0, 0), pressing("新建", kOfDiameters), enterCell("25"),
          pressing("上移", kOfDiameters), pressing("上移", kOfDiameters), pressing("下移", kOfDiameters),
          click("管径", 0, 0), pressing("删除", kOfDiameters)});
  ASSERT_EQ(steel->m_arrDNData.GetSize(), 2);
  EXPECT_EQ(steel->m_arrDNData[0].dbNominal, 25);
  EXPECT_EQ(steel->m_arrDNData[1].dbNominal, 20);
}

TEST_F(PipeManagerClicks, NameANewMaterial) {
  QString told;
  manage({pressing("新建"), enterCell("PPR"), answer(told, "确定"), enterCell("紫铜管"), pressing("上移")});
  EXPECT_EQ(told, QStringLiteral("【PPR】已经存在，请重新输入材质名称！"));
  EXPECT_EQ(names(), L"镀锌钢管 紫铜管 PPR");
}

TEST_F(PipeManagerClicks, LeaveNoMaterialWithoutAName) {
  manage({pressing("新建"), [] { top()->close(); }});
  EXPECT_EQ(names(), L"镀锌钢管 PPR");
}

TEST_F(PipeManagerClicks, AreAskedBeforeAMaterialGoes) {
  QString told;
  manage({click("管材管径", 1, 0), pressing("删除"), answer(told, "取消"), pressing("删除"),
          answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("删除不可恢复，确定要删除【PPR】吗?"));
  EXPECT_EQ(names(), L"镀锌钢管");
}

TEST_F(PipeManagerClicks, ChangeProperties) {
  manage({click("管材管径", 0, 0),
          [] {
            retype(find<QLineEdit>("绝对粗糙度(mm)"), "0.5");
            QTest::keyClick(&find<QLineEdit>("绝对粗糙度(mm)"), Qt::Key_Tab);
          },
          [] { QTest::keyClick(&find<QComboBox>("前缀字符"), Qt::Key_Down); },
          [] {
            auto& line = *find<QComboBox>("连接字符").lineEdit();
            retype(line, "-x-");
            QTest::keyClick(&line, Qt::Key_Return);
          }});
  EXPECT_EQ(steel->m_dRoughness, 0.5);
  EXPECT_EQ(steel->m_strPrefix, L"De");
  EXPECT_EQ(steel->m_strConnector, L"-x-");
}

TEST_F(PipeManagerClicks, PickAMaterial) {
  CZPPipeMaterial* material = steel;
  QString told;
  EXPECT_EQ(during([&] { return ZP::ShowPipeMaterialDlg(material, nullptr); },
                   {pressing("删除"), answer(told, "确定"), click("管材管径", 1, 0), key(Qt::Key_Return),
                    pressing("确定")}),
            1);
  EXPECT_EQ(told, QStringLiteral("当前管材管径正在使用，不允许删除！"));
  ASSERT_NE(material, nullptr);
  EXPECT_EQ(material->GetName(), L"PPR");
  EXPECT_EQ(during([&] { return ZP::ShowPipeMaterialDlg(material, nullptr); },
                   {click("管材管径", 0, 0), pressing("退出")}),
            0);
}

} // namespace
