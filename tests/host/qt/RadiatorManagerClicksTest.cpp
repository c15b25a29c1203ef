// The manager of radiators, as it manages and as it lets choose, by clicks and keys.
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"
#include "tests/host/qt/PlugInDialogs.h"

#include <QLabel>
#include <QTreeWidget>

namespace {

class RadiatorManagerClicks : public PlugInDialogs {
 protected:
  RadiatorManagerClicks() {
    empty();
    column = add(L"铸铁", L"四柱");
    column->m_dA = 0.651;
    add(L"铸铁", L"柱翼");
    panel = add(L"钢制", L"板型");
  }
  ~RadiatorManagerClicks() override { empty(); }
  void empty() {
    while (!catalogue.m_arrTypes.IsEmpty()) catalogue.Remove(catalogue.m_arrTypes[0]);
  }
  CZPRadiator* add(const wchar_t* typeName, const wchar_t* name) {
    catalogue.Add(typeName);
    auto* radiator = new CZPRadiator;
    radiator->SetName(name);
    EXPECT_TRUE(catalogue.GetRadiatorType(typeName)->Add(radiator));
    return radiator;
  }
  // "铸铁(四柱 柱翼) 钢制(板型)"
  CString names() const {
    CString all;
    for (const CZPRadiatorType* type : catalogue.m_arrTypes) {
      all += (all.IsEmpty() ? L"" : L" ") + type->GetName() + L"(";
      for (const CZPRadiator* radiator : type->m_arrRadiators)
        all += (radiator == type->m_arrRadiators[0] ? L"" : L" ") + radiator->GetName();
      all += L")";
    }
    return all;
  }
  int manage(Steps steps) {
    return during([] { return ZP::ShowRadMngDlg(nullptr); }, std::move(steps));
  }
  int choose(CZPRadiator*& radiator, Steps steps) {
    return during([&] { return ZP::ShowRadMngDlg(radiator, nullptr); }, std::move(steps));
  }

  static QTreeWidgetItem* item(const char* text) {
    const auto found =
        find<QTreeWidget>("散热器").findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
    if (found.size() != 1) throw std::runtime_error(std::string("no item ") + text);
    return found[0];
  }
  static std::function<void()> clickItem(const char* text) {
    return [text] {
      auto& tree = find<QTreeWidget>("散热器");
      tree.scrollToItem(item(text)); // opens what is above it
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item(text)).center());
    };
  }
  static std::function<void()> enter(const char* label, const char* text) {
    return [=] {
      retype(find<QLineEdit>(label), text);
      QTest::keyClick(&find<QLineEdit>(label), Qt::Key_Tab);
    };
  }
  static std::function<void()> begin(const char* label, const char* text) {
    return [=] { retype(find<QLineEdit>(label), text); };
  }
  static std::function<void()> nextChoice(const char* label) {
    return [label] { QTest::keyClick(&find<QComboBox>(label), Qt::Key_Down); };
  }
  CZPRadiatorManager& catalogue = *CZPRadiatorManager::GetInstance();
  CZPRadiator *column, *panel;
};

TEST_F(RadiatorManagerClicks, OpenATypeByTheKeyboard) {
  bool open = false;
  manage({clickItem("铸铁"), key(Qt::Key_Right), key(Qt::Key_Down), enter("实验系数a", "0.7"),
          [&] { open = item("铸铁")->isExpanded(); }});
  EXPECT_TRUE(open);
  EXPECT_EQ(column->m_dA, 0.7) << "the down key went on to it";
}

TEST_F(RadiatorManagerClicks, ChangeTheSelectedRadiator) {
  manage({clickItem("四柱"), enter("实验系数a", "0.5"), nextChoice("单位"), [] {
            retype(find<QLineEdit>("实验系数b"), "1.3");
            QTest::keyClick(&find<QLineEdit>("实验系数b"), Qt::Key_Return);
          }});
  EXPECT_EQ(column->m_dA, 0.5);
  EXPECT_EQ(column->m_dB, 1.3);
  EXPECT_EQ(column->m_strUnit, L"m");
  EXPECT_EQ(panel->m_strUnit, L"片");
}

TEST_F(RadiatorManagerClicks, TakeAnEditOverWhenAnotherRadiatorIsClicked) {
  manage({clickItem("四柱"), begin("实验系数a", "0.5"), clickItem("板型"), begin("实验系数a", "9"),
          key(Qt::Key_Escape)});
  EXPECT_EQ(column->m_dA, 0.5);
  EXPECT_EQ(panel->m_dA, 0.2);
}

TEST_F(RadiatorManagerClicks, SeeWhichNumbersAFormulaHas) {
  bool areaFirst = true, areaThen = true, outputThen = true;
  QString a, info;
  manage({clickItem("四柱"), [&] { areaFirst = find<QLineEdit>("单位散热面积f").isReadOnly(); },
          nextChoice("计算公式"),
          [&] {
            areaThen = find<QLineEdit>("单位散热面积f").isReadOnly();
            outputThen = find<QLineEdit>("单位散热量Qs'").isReadOnly();
            a = find<QLineEdit>("实验系数a").text();
            for (const auto* label : top()->findChildren<QLabel*>())
              if (label->text().startsWith(QStringLiteral("Qs="))) info = label->text();
          }});
  EXPECT_TRUE(areaFirst);
  EXPECT_FALSE(areaThen);
  EXPECT_TRUE(outputThen);
  EXPECT_EQ(a, QStringLiteral("0.3"));
  EXPECT_EQ(info, QStringLiteral("Qs=k×f×△T时：k=a×△T^b。"));
  EXPECT_EQ(column->m_nFormula, 1);
}

TEST_F(RadiatorManagerClicks, AreToldAboutTheFieldThatTheyAreIn) {
  QStringList told;
  const auto look = [&] {
    for (const auto* label : top()->findChildren<QLabel*>())
      if (!label->text().isEmpty()) told.append(label->text());
  };
  const auto clickField = [](const char* label) {
    return [label] { QTest::mouseClick(&find<QLineEdit>(label), Qt::LeftButton); };
  };
  manage({clickItem("四柱"), pressing("添加"), clickField("散热器材质"), look, key(Qt::Key_Tab), look,
          clickField("单位散热量Qs'"), look, begin("单位散热面积f", "0.2"), clickField("散热器类型"), look});
  EXPECT_EQ(told.join(QLatin1Char('|')),
            QStringLiteral("一般指散热器厂家或者材料|一般指散热器型号|单位：w/片或者w/m|"
                           "一般指散热器型号"));
}

TEST_F(RadiatorManagerClicks, SeeAUnitThatIsNotOffered) {
  column->m_strUnit = L"组";
  QString unit;
  int index = 0;
  manage({clickItem("四柱"), [&] {
            const auto& combo = find<QComboBox>("单位");
            index = combo.currentIndex();
            unit = combo.placeholderText();
          }});
  EXPECT_EQ(index, -1);
  EXPECT_EQ(unit, QStringLiteral("组"));
  EXPECT_EQ(column->m_strUnit, L"组");
}

TEST_F(RadiatorManagerClicks, OfferWhatCanBeDone) {
  std::vector<bool> able;
  const auto look = [&] {
    for (const char* caption : {"添加", "删除", "修改"})
      able.push_back(find<QPushButton>(caption).isEnabled());
  };
  manage({look, clickItem("全部散热器"), look, clickItem("铸铁"), look, clickItem("四柱"), look});
  const std::vector<bool> expected = {true, false, false, true, false, false,
                                      true, true,  false, true, true,  true};
  EXPECT_EQ(able, expected);
}

TEST_F(RadiatorManagerClicks, AddARadiatorOfANewType) {
  QString told, selected, title;
  manage({pressing("添加"), [&] { title = top()->windowTitle(); },
          pressing("添加"), // the button of that name in the window that has opened
          answer(told, "确定"), enter("散热器材质", " 铜铝 "), enter("散热器类型", "TLZ"), nextChoice("单位"),
          pressing("添加"), [&] { selected = find<QTreeWidget>("散热器").currentItem()->text(0); }});
  EXPECT_EQ(title, QStringLiteral("添加散热器"));
  EXPECT_EQ(told, QStringLiteral("散热器类型为空，请重新输入!"));
  EXPECT_EQ(selected, QStringLiteral("TLZ"));
  EXPECT_EQ(names(), L"铸铁(四柱 柱翼) 钢制(板型) 铜铝(TLZ)");
  EXPECT_EQ(catalogue.GetRadiator(L"TLZ", L"铜铝")->m_strUnit, L"m");
}

TEST_F(RadiatorManagerClicks, AddFromATemplateByEnter) {
  manage({clickItem("四柱"), pressing("添加"), enter("散热器类型", "四柱二"),
          [] { find<QPushButton>("添加").setFocus(); }, key(Qt::Key_Return)});
  EXPECT_EQ(names(), L"铸铁(四柱 柱翼 四柱二) 钢制(板型)");
  EXPECT_EQ(catalogue.GetRadiator(L"四柱二", L"")->m_dA, 0.651);
}

TEST_F(RadiatorManagerClicks, RenameAndMove) {
  QString told;
  manage({clickItem("四柱"), pressing("修改"), enter("散热器类型", "板型"), pressing("修改"),
          answer(told, "确定"), enter("散热器类型", "四柱760"), pressing("修改"), pressing("修改"),
          enter("散热器材质", "钢制"), pressing("修改")});
  EXPECT_EQ(told, QStringLiteral("散热器【板型】重名，请重新定义散热器类型！"));
  EXPECT_EQ(names(), L"铸铁(柱翼) 钢制(板型 四柱760)");
}

TEST_F(RadiatorManagerClicks, AreAskedBeforeARadiatorGoes) {
  QString told;
  manage({clickItem("柱翼"), pressing("删除"), answer(told, "取消"), begin("实验系数a", "5"),
          pressing("删除"), answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("删除不可恢复，确定要删除[柱翼]吗？"));
  EXPECT_EQ(names(), L"铸铁(四柱) 钢制(板型)");
}

TEST_F(RadiatorManagerClicks, ChooseARadiator) {
  CZPRadiator* radiator = panel;
  QString told, ofType;
  EXPECT_EQ(choose(radiator, {pressing("删除"), answer(told, "确定"), clickItem("钢制"), pressing("删除"),
                              answer(ofType, "取消"), clickItem("四柱"), pressing("确定")}),
            1);
  EXPECT_EQ(told, QStringLiteral("当前散热器[板型]数据正在使用，不允许删除！？"));
  EXPECT_EQ(ofType, QStringLiteral("当前[钢制]数据正在使用，不允许删除！？"));
  EXPECT_EQ(radiator, column);
  EXPECT_EQ(choose(radiator, {clickItem("板型"), pressing("退出")}), 0);
  EXPECT_EQ(choose(radiator, {clickItem("钢制"), pressing("确定")}), 0);
  EXPECT_EQ(radiator, column);
}

TEST_F(RadiatorManagerClicks, CloseInTheMiddleOfAnEdit) {
  for (const char* label : {"实验系数a", "实验系数b"})
    manage({clickItem("四柱"), begin(label, "abc"), [] { top()->close(); }});
  EXPECT_EQ(column->m_dA, 0.651);
  EXPECT_EQ(column->m_dB, 1.2);
  for (const char* label : {"散热器材质", "散热器类型", "实验系数a"}) {
    manage({clickItem("四柱"), pressing("添加"), begin(label, "新"), [] { top()->close(); }});
    manage({clickItem("四柱"), pressing("修改"), begin(label, "新"), [] { top()->close(); }});
  }
  EXPECT_EQ(names(), L"铸铁(四柱 柱翼) 钢制(板型)");
  EXPECT_EQ(column->m_dA, 0.651);
}

} // namespace
