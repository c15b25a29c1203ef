// The manager of fan-coil units by clicks and keys.
#include "host/db/AcDbCurves.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"
#include "plugin/fancoil/dialogs/ShowFanCoilDialogs.h"
#include "tests/host/qt/FanCoilCatalogue.h"
#include "tests/host/qt/PlugInDialogs.h"

#include <QTreeWidget>

namespace {

class FanCoilManagerClicks : public PlugInDialogs {
 protected:
  int manage(Steps steps) {
    return during(
        [] {
          constexpr bool favourites = false;
          return CKTFCUManagerDlg(favourites, nullptr).DoModal();
        },
        std::move(steps));
  }
  int pickFavourite(CFCUEquipment*& equipment, Steps steps) {
    return during([&] { return ZP::ShowCommonFCUMngDlg(equipment); }, std::move(steps));
  }
  static QTreeWidgetItem& item(const char* text) {
    const auto found = find<QTreeWidget>("风机盘管列表")
                           .findItems(QString::fromUtf8(text), Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) throw std::runtime_error(std::string("no item ") + text);
    return *found[0];
  }
  static std::function<void()> clickItem(const char* text) {
    return [=] {
      auto& tree = find<QTreeWidget>("风机盘管列表");
      tree.scrollToItem(&item(text));
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(&item(text)).center());
    };
  }
  static std::function<void()> doubleClickItem(const char* text) {
    return [=] {
      auto& tree = find<QTreeWidget>("风机盘管列表");
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(&item(text)).center());
      QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(&item(text)).center());
    };
  }
  static std::function<void()> fill(const char* caption, const char* text) {
    return [=] {
      retype(find<QLineEdit>(caption), text);
      QTest::keyClick(&find<QLineEdit>(caption), Qt::Key_Return);
    };
  }
  static QString property(const char* label) { return find<QLineEdit>(label).text(); }

  FanCoilCatalogue catalogue{install};
  CFCUFactory* maker = catalogue.maker;
};

TEST_F(FanCoilManagerClicks, ShowTheModelOfAnItem) {
  QString model;
  bool readOnly = false;
  manage({clickItem("B"), [&] {
            model = property("设备型号");
            readOnly = find<QLineEdit>("设备型号").isReadOnly();
          }});
  EXPECT_EQ(model, QStringLiteral("B"));
  EXPECT_TRUE(readOnly);
}

TEST_F(FanCoilManagerClicks, FilterTheTree) {
  int all = 0, exposed = 0;
  manage({[&] { all = item("甲").childCount(); },
          [] { QTest::keyClick(&find<QComboBox>("安装形式过滤："), Qt::Key_Down); },
          [&] { exposed = item("甲").childCount(); }});
  EXPECT_EQ(all, 3);
  EXPECT_EQ(exposed, 1);
}

TEST_F(FanCoilManagerClicks, AddAModel) {
  QString empty, taken;
  EXPECT_EQ(
      manage({pressing("添加"), pressing("确认添加"), answer(empty, "确定"), fill("设备型号", "B"),
              pressing("确认添加"), answer(taken, "确定"), fill("设备型号", "N"),
              fill("水流量(l/s)", "0.086"), [] { QTest::keyClick(&find<QComboBox>("安装形式"), Qt::Key_Up); },
              pressing("确认添加"), pressing("保存"), key(Qt::Key_Escape)}),
      IDCANCEL);
  EXPECT_EQ(empty, QStringLiteral("型号名不能为空!"));
  EXPECT_EQ(taken, QStringLiteral("厂家\"甲\"拥有的设备中，型号名\"B\"已存在，请重新指定型号名!"));
  EXPECT_EQ(catalogue.Names(), L"甲: A B C N\n");
  EXPECT_EQ(maker->GetEquipment(L"N")->m_data.dbWaterFlow, 0.086);
  EXPECT_EQ(maker->GetEquipment(L"N")->m_data.szInstallStyle, L"明装");
  EXPECT_NE(install.Read("Data/FCUData.idp").find("\"设备型号\":\"N\""), std::string::npos);
}

TEST_F(FanCoilManagerClicks, ChangeAModelByTheKeyboard) {
  manage({clickItem("A"), pressing("修改"), fill("功率(W)", "55"),
          [] { QTest::keyClick(top(), Qt::Key_Return); }});
  EXPECT_EQ(maker->GetEquipment(L"A")->m_data.dbPower, 55);
}

TEST_F(FanCoilManagerClicks, AreAskedBeforeAModelGoes) {
  QString told;
  manage({clickItem("B"), pressing("删除"), answer(told, "取消"), pressing("删除"), answer(told, "确定")});
  EXPECT_EQ(told, QStringLiteral("删除不可恢复，确定要删除[B]吗？"));
  EXPECT_EQ(catalogue.Names(), L"甲: A C\n");
}

TEST_F(FanCoilManagerClicks, MakeABlockOfWhatIsDrawn) {
  for (const AcGePoint3d& end : {AcGePoint3d(160, 200, 0), AcGePoint3d(100, 230, 0)})
    ASSERT_EQ(ArxDbgUtils::addToCurrentSpaceAndClose(new AcDbLine({100, 200, 0}, end)), Acad::eOk);
  look(130, 215, 100);
  SystemVariables::set(L"OSMODE", 0L);
  QString hidden = QStringLiteral("not yet");
  // The user at the drawing, one thing after the other as prompts come.
  std::vector<std::function<void()>> picks = {[&] {
                                                hidden = top() ? top()->windowTitle() : QString();
                                                enter("all");
                                              },
                                              [&] { enter(""); }, [&] { enter("100,200"); },
                                              [&] { Desktop::click(110, 205); }};
  std::size_t next = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    if (next < picks.size() && !top()) picks[next++]();
  });
  bool shown = false;
  manage({pressing("添加"), fill("设备型号", "N"),
          [&] {
            timer.start(20);
            press("图面选取");
            timer.stop();
          },
          [&] { shown = top() && top()->windowTitle() == QStringLiteral("添加风机盘管"); },
          pressing("确认添加")});
  EXPECT_EQ(hidden, QString()) << "both windows are out of the way";
  EXPECT_EQ(next, picks.size());
  EXPECT_TRUE(shown);
  const CFCUEquipment* model = maker->GetEquipment(L"N");
  ASSERT_TRUE(model);
  EXPECT_EQ(model->m_data.dbCadLength, 60);
  EXPECT_EQ(model->m_data.dbCadWidth, 30);
  EXPECT_TRUE(install.Has("Data/FCUDwg/" + model->m_data.szDwgPath.ToUtf8() + ".Dwg"));
}

TEST_F(FanCoilManagerClicks, PickFromTheFavourites) {
  CFCUEquipment* equipment = nullptr;
  QString told, empty;
  const auto select = [](const char* text) {
    return [=] { clickEntry(find<QListWidget>("常用风机盘管"), text); };
  };
  EXPECT_EQ(pickFavourite(equipment, {select("B|甲"), pressing("→"), doubleClickItem("A"),
                                      answer(told, "确定"), select("C|甲"), pressing("↑"), pressing("确认")}),
            IDOK);
  EXPECT_EQ(told, QStringLiteral("所选择的风机盘管已经在常用风机盘管列表中!"));
  EXPECT_EQ(equipment, maker->GetEquipment(L"C"));
  CString remembered;
  ZP::GetDefaultValue(L"空调水路\\风机盘管\\管理器\\常用风机盘管列表", remembered);
  EXPECT_EQ(remembered, L"C|甲;A|甲;");
  EXPECT_EQ(
      pickFavourite(equipment, {select("C|甲"), pressing("→"), pressing("→"), pressing("确认"),
                                answer(empty, "确定"), clickItem("B"), pressing("←"), pressing("确认")}),
      IDOK);
  EXPECT_EQ(empty, QStringLiteral("常用风机盘管列表不能为空!"));
  EXPECT_EQ(equipment, maker->GetEquipment(L"B"));
}

TEST_F(FanCoilManagerClicks, FindNothingToChangeWhereModelsAreOnlyPicked) {
  CFCUEquipment* equipment = maker->GetEquipment(L"B");
  bool add = true, save = true;
  EXPECT_EQ(during([&] { return ZP::ShowFCUMngDlg(equipment, nullptr); },
                   {[&] {
                      add = find<QPushButton>("添加").isVisible();
                      save = find<QPushButton>("保存").isVisible();
                    },
                    clickItem("C"), [] { QTest::keyClick(top(), Qt::Key_Return); }}),
            1);
  EXPECT_FALSE(add);
  EXPECT_FALSE(save);
  EXPECT_EQ(equipment, maker->GetEquipment(L"C"));
}

} // namespace
