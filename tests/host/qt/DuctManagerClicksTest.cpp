// The manager of duct materials and sizes by clicks and keys.
#include "tests/host/qt/PlugInDialogs.h"

namespace {

class DuctManagerClicks : public PlugInDialogs {
 protected:
  DuctManagerClicks() {
    empty();
    auto* material = new CZPDuctMaterial;
    material->SetName(L"镀锌钢板");
    SZPDuctThickness narrow(0, 320, 0.5);
    material->m_arrThickness.Add(narrow);
    EXPECT_TRUE(catalogue.Add(material));
    steel = material;
    EXPECT_TRUE(catalogue.AddRectDuctDiameter(new CZPDuctDiameter(320, 200)));
    EXPECT_TRUE(catalogue.AddCircleDuctDiameter(new CZPDuctDiameter(100, 0)));
  }
  ~DuctManagerClicks() override { empty(); }
  void empty() {
    pipes::DestroyElements(catalogue.m_arrMaterials);
    pipes::DestroyElements(catalogue.m_arrRectDiameters);
    pipes::DestroyElements(catalogue.m_arrCircleDiameters);
  }
  int manage(Steps steps) {
    return during([] { return ZP::ShowDuctMaterialDlg(nullptr); }, std::move(steps));
  }
  static std::function<void()> menu(int row, const char* command) {
    return [=] { chooseFromMenu("风管壁厚", row, command); };
  }
  CZPDuctMaterialManager& catalogue = *CZPDuctMaterialManager::GetInstance();
  CZPDuctMaterial* steel = nullptr;
};

TEST_F(DuctManagerClicks, LeaveTheRoughnessByTab) {
  manage({[] { retype(find<QLineEdit>("绝对粗糙度(mm)："), "0.3"); },
          [this] { EXPECT_NE(steel->m_dRoughness, 0.3) << "not before it is left"; }, key(Qt::Key_Tab)});
  EXPECT_EQ(steel->m_dRoughness, 0.3);
}

TEST_F(DuctManagerClicks, MakeARowOfTheEmptyOneAndGoOnByTab) {
  manage({doubleClick("风管壁厚", 2, 0), [] { typeInto(editor(), "321"); }, key(Qt::Key_Tab),
          [] { typeInto(editor(), "630"); }, key(Qt::Key_Tab), [] { typeInto(editor(), "0.6"); },
          key(Qt::Key_Return)});
  ASSERT_EQ(steel->m_arrThickness.GetSize(), 2);
  EXPECT_EQ(steel->m_arrThickness[1].dbMin, 321);
  EXPECT_EQ(steel->m_arrThickness[1].dbMax, 630);
  EXPECT_EQ(steel->m_arrThickness[1].dbThickness, 0.6);
}

TEST_F(DuctManagerClicks, AreToldWhatIsNoThickness) {
  QString told;
  manage({doubleClick("风管壁厚", 1, 2), enterCell("abc"), answer(told, "确定"),
          [] { EXPECT_EQ(shown("风管壁厚", 1, 2), QStringLiteral("0.5")); }});
  EXPECT_EQ(told, QStringLiteral("输入的数据不是数值型，请重新输入！"));
}

TEST_F(DuctManagerClicks, AddAndDeleteThicknessesByTheMenu) {
  manage({menu(1, "新建"), [this] { EXPECT_EQ(steel->m_arrThickness.GetSize(), 2); }, menu(1, "删除")});
  ASSERT_EQ(steel->m_arrThickness.GetSize(), 1);
  EXPECT_EQ(steel->m_arrThickness[0].dbMax, 0) << "the zero row is left";
}

TEST_F(DuctManagerClicks, AddASizeOfEachShape) {
  manage({doubleClick("风管规格", 2, 0), enterCell("200"), doubleClick("风管规格", 1, 1), enterCell("120"),
          [] { clickEntry(find<QListWidget>("截面形状："), "圆形"); },
          [] { EXPECT_TRUE(find<QTableView>("风管规格").isColumnHidden(1)); }, doubleClick("风管规格", 2, 0),
          enterCell("80")});
  ASSERT_EQ(catalogue.m_arrRectDiameters.GetSize(), 2);
  EXPECT_EQ(catalogue.m_arrRectDiameters[0]->m_dWidth, 200);
  EXPECT_EQ(catalogue.m_arrRectDiameters[0]->m_dHeight, 120);
  ASSERT_EQ(catalogue.m_arrCircleDiameters.GetSize(), 2);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[0]->m_dWidth, 80);
}

TEST_F(DuctManagerClicks, AreAskedBeforeASizeGoes) {
  QString told;
  manage({doubleClick("风管规格", 1, 0), enterCell(""), answer(told, "取消"),
          [] { EXPECT_EQ(shown("风管规格", 1, 0), QStringLiteral("320")); }, doubleClick("风管规格", 1, 0),
          enterCell(""), answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("当前字符串为空！删除不可恢复，确定要删除【320】吗?"));
  EXPECT_EQ(catalogue.m_arrRectDiameters.GetSize(), 0);
}

TEST_F(DuctManagerClicks, PickAMaterial) {
  CZPDuctMaterial* material = nullptr;
  EXPECT_EQ(during([&] { return ZP::ShowDuctMaterialDlg(material, nullptr); }, {pressing("确定")}), 1);
  EXPECT_EQ(material, steel) << "the first one, none being in use";
  QString told;
  EXPECT_EQ(during([&] { return ZP::ShowDuctMaterialDlg(material, nullptr); },
                   {pressing("删除"), answer(told, "确定"), [] { top()->close(); }}),
            0);
  EXPECT_EQ(told, QStringLiteral("当前管材管径正在使用，不允许删除！"));
}

} // namespace
