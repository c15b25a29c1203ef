// The radiator calculation by clicks and keys: its fields, what its buttons open, and the prompts in the
// drawing that it steps aside for.
#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"

#include "host/db/AcDbText.h"
#include "plugin/base/DefaultValues.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/support/CalculatedRoom.h"

#include <QLabel>
#include <QTreeWidget>

namespace {

class RadiatorCalculationClicks : public PlugInDialogs {
 protected:
  RadiatorCalculationClicks() {
    ZP::SetDefaultValuesFile(CString::FromUtf8((install.Root() / "Defaults.idp").string()));
    Clear();
    catalogue.Add(L"铸铁");
    iron = Add(L"四柱760");
    fixed = Add(L"柱式");
    fixed->m_nFormula = 2;
    fixed->m_strUnit = L"m";
  }
  ~RadiatorCalculationClicks() override {
    Clear();
    ZP::SetDefaultValuesFile(L"");
  }
  void Clear() {
    while (!catalogue.m_arrTypes.IsEmpty()) catalogue.Remove(catalogue.m_arrTypes[0]);
  }
  CZPRadiator* Add(const wchar_t* name) {
    auto* radiator = new CZPRadiator;
    radiator->SetName(name);
    catalogue.GetRadiatorType(L"铸铁")->Add(radiator);
    return radiator;
  }
  int Calculation(Steps steps) {
    return during([] { return static_cast<int>(CZPRadiatorCalculateDlg(nullptr).DoModal()); },
                  std::move(steps));
  }
  static std::function<void()> fill(const char* caption, const char* text) {
    return [=] { retype(find<QLineEdit>(caption), text); };
  }
  static std::function<void()> fillCombo(const char* caption, const char* text) {
    return [=] { retype(*find<QComboBox>(caption).lineEdit(), text); };
  }
  static std::function<void()> clickItem(const char* text) {
    return [=] {
      auto& tree = find<QTreeWidget>("散热器");
      const auto items = tree.findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
      ASSERT_EQ(items.size(), 1);
      tree.scrollToItem(items[0]);
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(items[0]).center());
    };
  }
  static QString Result() { return find<QLineEdit>("散热器片数(片)：").text(); }
  static constexpr int kLoad = 0; // the numbers of the buttons "..."
  static constexpr int kBeta3 = 3;

  CZPRadiatorManager& catalogue = *CZPRadiatorManager::GetInstance();
  CZPRadiator *iron = nullptr, *fixed = nullptr;
};

TEST_F(RadiatorCalculationClicks, CalculateByButtonAndByEnterInAnyField) {
  QString byButton, byEnter, byEnterInList;
  Calculation({fill("散热器承担的负荷Qj(W)：", "2000"), pressing("计算"), [&] { byButton = Result(); },
               fill("流入流量修正系数β4：", "0.5"), key(Qt::Key_Return), [&] { byEnter = Result(); },
               fillCombo("供水温度(℃)：", "47.5"), key(Qt::Key_Return), [&] { byEnterInList = Result(); }});
  EXPECT_EQ(byButton, QStringLiteral("87.26"));
  EXPECT_EQ(byEnter, QStringLiteral("43.63"));
  EXPECT_NE(byEnterInList, byEnter);
  EXPECT_EQ(iron->m_calData.dbTg, 47.5);
  EXPECT_EQ(iron->m_calData.dbBeta4, 0.5);
}

TEST_F(RadiatorCalculationClicks, ChooseATemperatureFromItsList) {
  Calculation({[] {
                 auto& combo = find<QComboBox>("室内温度(℃)：");
                 combo.setFocus();
                 QTest::keyClick(&combo, Qt::Key_Down);
                 QTest::keyClick(&combo, Qt::Key_Down);
               },
               pressing("计算")});
  EXPECT_EQ(iron->m_calData.dbTn, 20);
}

TEST_F(RadiatorCalculationClicks, ChooseAFactorFromItsTable) {
  QString beta;
  Calculation({pressing("...", kBeta3), click("散热器安装形式修正系数β3", 3, 1), pressing("确定"),
               [&] { beta = find<QLineEdit>("安装形式修正系数β3：").text(); }, pressing("...", kBeta3),
               doubleClick("散热器安装形式修正系数β3", 2, 1),
               [&] { beta += find<QLineEdit>("安装形式修正系数β3：").text(); }});
  EXPECT_EQ(beta, QStringLiteral("0.951.02"));
}

TEST_F(RadiatorCalculationClicks, ChooseARadiatorThatDisablesTemperaturesAndCountsMetres) {
  bool enabled = true;
  QStringList labels;
  Calculation({pressing("散热器管理器..."), clickItem("柱式"), pressing("确定"),
               [&] {
                 enabled = find<QComboBox>("供水温度(℃)：").isEnabled();
                 for (const auto* label : top()->findChildren<QLabel*>()) labels += label->text();
               },
               pressing("计算")});
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(labels.contains(QStringLiteral("名称：柱式")));
  EXPECT_TRUE(labels.contains(QStringLiteral("散热器长度(m)：")));
  EXPECT_EQ(fixed->CalculateNumber(), 12.5);
}

TEST_F(RadiatorCalculationClicks, TakeTheLoadOfARoomAndWriteTheResult) {
  AddCalculatedRoom(1600, 20);
  QString load, temperature;
  bool hidden = false;
  // The prompts are answered at the command line, while no dialog stands open.
  const auto answer = [&](const char* line) {
    QTimer::singleShot(0, [&, line] {
      hidden = top() == nullptr;
      enter(line);
    });
  };
  Calculation({[&] {
                 answer("0,2000");
                 press("...", kLoad);
               },
               [&] {
                 load = find<QLineEdit>("散热器承担的负荷Qj(W)：").text();
                 temperature = find<QComboBox>("室内温度(℃)：").currentText();
               },
               [&] {
                 answer("500,600");
                 press("标注");
               }});
  EXPECT_TRUE(hidden);
  EXPECT_EQ(load, QStringLiteral("1600.00"));
  EXPECT_EQ(temperature, QStringLiteral("20"));
  const auto* note = last<AcDbText>();
  ASSERT_TRUE(note);
  EXPECT_EQ(note->textString().Left(6), L"散热器片数:");
  EXPECT_TRUE(note->position().isEqualTo({500, 600, 0}));
}

TEST_F(RadiatorCalculationClicks, LeaveByEscapeAndStoreNothing) {
  EXPECT_EQ(Calculation({fill("散热器承担的负荷Qj(W)：", "7"), key(Qt::Key_Escape)}), IDCANCEL);
  EXPECT_FALSE(install.Has("Defaults.idp"));
}

TEST_F(RadiatorCalculationClicks, TakeNoLettersAsANumber) {
  QString load, beta;
  Calculation({fill("散热器承担的负荷Qj(W)：", "1a2b"), fill("安装形式修正系数β3：", "x1.y5"), [&] {
                 load = find<QLineEdit>("散热器承担的负荷Qj(W)：").text();
                 beta = find<QLineEdit>("安装形式修正系数β3：").text();
               }});
  EXPECT_EQ(load, QStringLiteral("12"));
  EXPECT_EQ(beta, QStringLiteral("1.5"));
}

TEST_F(RadiatorCalculationClicks, AreToldOfAnEmptyCatalogue) {
  Clear();
  QString told;
  EXPECT_EQ(Calculation({answer(told, "确定")}), -1);
  EXPECT_EQ(told, QStringLiteral("散热器为空，无法启动散热器计算对话框，请检查散热器数据库!"));
}

} // namespace
