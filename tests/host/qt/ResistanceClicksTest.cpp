// The manager of local-resistance coefficients and the contents of a pipe section by clicks and keys.
#include "plugin/base/NumberText.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/plugin/resistance/ShippedStore.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QLabel>
#include <QStyleOptionSpinBox>
#include <QTabWidget>

namespace {

constexpr int kName = 1; // columns of the manager
constexpr int kDN20 = 3;

class ResistanceClicks : public PlugInDialogs {
 protected:
  ResistanceClicks() { EXPECT_EQ(store.GetOpenStatus(), 0); }
  int manage(Steps steps) {
    return during([] { return ZP::ShowLRMDlg(nullptr); }, std::move(steps));
  }
  int settle(Steps steps) {
    return during([this] { return ZP::ShowLRSDlg(section, nullptr); }, std::move(steps));
  }
  static std::function<void()> turn(int page) {
    return [page] {
      auto& sheet = find<QTabWidget>("局阻系数");
      QTest::mouseClick(sheet.tabBar(), Qt::LeftButton, {}, sheet.tabBar()->tabRect(page).center());
    };
  }
  // The field of a flow, of which several forms have one; number counts them in the order of the forms.
  static QAbstractSpinBox& field(const char* flow, int number = 0) {
    return find<QAbstractSpinBox>(flow, number);
  }
  static QLineEdit& line(const char* flow, int number = 0) {
    return *field(flow, number).findChild<QLineEdit*>();
  }
  // The buttons beside a field.
  static std::function<void()> step(const char* flow, int number, QStyle::SubControl button) {
    return [=] {
      auto& box = field(flow, number);
      QStyleOptionSpinBox option;
      option.initFrom(&box);
      option.subControls = QStyle::SC_All;
      const QRect place = box.style()->subControlRect(QStyle::CC_SpinBox, &option, button, &box);
      QTest::mouseClick(&box, Qt::LeftButton, {}, place.center());
    };
  }
  // Opens the list of a name's cell by a click, and takes an entry by keys.
  static Steps choose(int row, int entry) {
    return {click("管道配件", row, 0), [] {},
            [entry] {
              auto* view = dynamic_cast<QComboBox&>(editor()).view();
              ASSERT_TRUE(view->isVisible());
              QTest::keyClick(view, Qt::Key_Home);
              for (int i = 0; i < entry; ++i) QTest::keyClick(view, Qt::Key_Down);
              QTest::keyClick(view, Qt::Key_Return);
            }};
  }
  static Steps join(std::initializer_list<Steps> parts) {
    Steps all;
    for (const Steps& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  }
  static QString total() { return find<QLineEdit>("总局部阻力系数：").text(); }
  CString fittings() const {
    CString text;
    for (const CZPPipeParts& part : section.m_arrParts)
      text += part.GetName() + L"x" + ZP::itoa(part.GetNumber()) + L" ";
    return text;
  }
  CZPLocalResistanceMng& store = StoreOfShippedData(install);
  CZPLocalResistanceSettings section;
};

TEST_F(ResistanceClicks, NameMoveAndDeleteFittings) {
  const int before = store.m_arrPartsCoe.GetSize();
  EXPECT_EQ(manage({pressing("新建"), enterCell("蝶阀"), doubleClick("管道配件", before, kDN20),
                    enterCell("0.3"), pressing("上移"), click("管道配件", 0, kName), pressing("删除"),
                    pressing("下移"), pressing("确定")}),
            IDOK);
  ASSERT_EQ(store.m_arrPartsCoe.GetSize(), before);
  EXPECT_EQ(store.m_arrPartsCoe[0].szName, L"钢制锅炉") << "the second one moved down";
  EXPECT_EQ(store.m_arrPartsCoe[1].szName, L"铸铁锅炉");
  EXPECT_EQ(store.m_arrPartsCoe[before - 2].szName, L"蝶阀");
  EXPECT_EQ(store.m_arrPartsCoe[before - 2].dbDN20, 0.3);
  EXPECT_EQ(FreshStore()->m_arrPartsCoe[before - 2].szName, L"蝶阀") << "in the file";
}

TEST_F(ResistanceClicks, GoFromCellToCellByTab) {
  manage({doubleClick("管道配件", 0, kName), [] { typeInto(editor(), "暖气片"); }, key(Qt::Key_Tab),
          [] { typeInto(editor(), "2.2"); }, key(Qt::Key_Tab), key(Qt::Key_Escape), pressing("应用")});
  EXPECT_EQ(store.m_arrPartsCoe[0].szName, L"暖气片");
  EXPECT_EQ(store.m_arrPartsCoe[0].dbDN15, 2.2);
  EXPECT_EQ(store.m_arrPartsCoe[0].dbDN20, 2);
}

TEST_F(ResistanceClicks, StepCoefficientsOfTees) {
  const double before = store.m_coe3T4T.merge3From1;
  manage({turn(1), step("1→3", 0, QStyle::SC_SpinBoxUp), step("1→3", 0, QStyle::SC_SpinBoxUp),
          step("1→3", 0, QStyle::SC_SpinBoxDown), [] { retype(line("1→4"), "0.05"); },
          step("1→4", 0, QStyle::SC_SpinBoxDown), [] { EXPECT_EQ(line("1→4").text(), QStringLiteral("0")); },
          [] { typeInto(line("3→1"), "abc"); }, [] { EXPECT_EQ(line("3→1").text(), QStringLiteral("1")); },
          pressing("确定")});
  EXPECT_NEAR(store.m_coe3T4T.merge3From1, before + 0.1, 1e-9);
  EXPECT_EQ(store.m_coe3T4T.cross1To4, 0);
}

TEST_F(ResistanceClicks, SaveThePageThatShowsAlone) {
  const CString first = store.m_arrPartsCoe[0].szName;
  manage({doubleClick("管道配件", 0, kName), enterCell("暖气片"), turn(1), [] { retype(line("1→3"), "7"); },
          pressing("确定")});
  EXPECT_EQ(store.m_arrPartsCoe[0].szName, first);
  EXPECT_EQ(store.m_coe3T4T.merge3From1, 7);
}

TEST_F(ResistanceClicks, FillASection) {
  EXPECT_EQ(
      settle(join(
          {choose(1, 13),
           choose(2, 0),
           choose(3, 13),
           {doubleClick("管道配件", 2, 3), enterCell("3"), [] { EXPECT_EQ(total(), QStringLiteral("26")); },
            step("1→3", 1, QStyle::SC_SpinBoxUp), [] { EXPECT_EQ(total(), QStringLiteral("27")); },
            [] { retype(line("其它局部阻力系数："), "0.25"); },
            [] { EXPECT_EQ(total(), QStringLiteral("27.25")); }, pressing("确定")}})),
      1);
  EXPECT_EQ(fittings(), L"截止阀x2 散热器x3 ");
  EXPECT_EQ(section.m_num3T4T.split1To3, 1);
  EXPECT_EQ(section.m_dOtherCoe, 0.25);
}

TEST_F(ResistanceClicks, ChooseAmongNamesOfAnyLength) {
  store.m_arrPartsCoe[0].szName = CString(std::wstring(100000, L'长'));
  store.m_arrPartsCoe[1].szName = L"一\n二\U0001F600";
  settle(join({choose(1, 0), choose(2, 1), {pressing("确定")}}));
  ASSERT_EQ(section.m_arrParts.GetSize(), 2);
  EXPECT_EQ(section.m_arrParts[0].GetName(), store.m_arrPartsCoe[0].szName);
  EXPECT_EQ(section.m_arrParts[1].GetName(), store.m_arrPartsCoe[1].szName);
}

TEST_F(ResistanceClicks, TakeARowAwayByTheEmptyEntry) {
  for (const wchar_t* name : {L"闸阀", L"弯头"}) {
    CZPPipeParts part(name, 2);
    section.m_arrParts.Add(part);
  }
  settle(join({choose(1, store.m_arrPartsCoe.GetSize()),
               {[] { EXPECT_EQ(shown("管道配件", 1, 0), QStringLiteral("弯头")); }, pressing("确定")}}));
  EXPECT_EQ(fittings(), L"弯头x2 ");
}

TEST_F(ResistanceClicks, LeaveTheSectionAloneByEscape) {
  EXPECT_EQ(settle(join({choose(1, 13), {key(Qt::Key_Escape)}})), 0);
  EXPECT_EQ(fittings(), L"");
}

TEST_F(ResistanceClicks, CanNotOpenWhatIsReadOnly) {
  settle(join({choose(1, 13),
               {doubleClick("管道配件", 1, 1), [] { EXPECT_FALSE(top()->findChild<QWidget*>("cellEditor")); },
                doubleClick("管道配件", 1, 2), [] { EXPECT_FALSE(top()->findChild<QWidget*>("cellEditor")); },
                doubleClick("管道配件", 2, 3), [] { EXPECT_FALSE(top()->findChild<QWidget*>("cellEditor")); },
                [] { EXPECT_TRUE(find<QLineEdit>("总局部阻力系数：").isReadOnly()); },
                [] { EXPECT_TRUE(find<QLineEdit>("附加局部阻力系数：").isReadOnly()); }}}));
}

TEST_F(ResistanceClicks, ComeBackFromTheManagerWithNewCoefficients) {
  settle(join({choose(1, 0),
               {pressing("局阻系数管理器..."), doubleClick("管道配件", 0, kDN20), enterCell("5"),
                pressing("确定"), [] { EXPECT_EQ(shown("管道配件", 1, 2), QStringLiteral("5")); },
                [] { EXPECT_EQ(total(), QStringLiteral("5")); }}}));
}

} // namespace
