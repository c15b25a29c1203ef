// A user without a plan at the widgets themselves: clicks anywhere, presses keys and types, in each dialog of
// the plug-in and in whatever that opens. Nothing may break, and what the file holds afterwards is what the
// catalogue holds.
#include "plugin/base/CIDPEx.h"
#include "plugin/base/DefaultValues.h"
#include "plugin/base/Folders.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"
#include "plugin/frame/CZPSystemSettingsDlg.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/dialogs/CZPLayerManagerDlg.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"
#include "plugin/radiators/dialogs/ShowRadiatorDialogs.h"
#include "plugin/resistance/CZPLocalResistanceSettings.h"
#include "plugin/resistance/dialogs/ShowResistanceDialogs.h"
#include "tests/host/qt/FanCoilCatalogue.h"
#include "tests/host/qt/PlugInDialogs.h"
#include "tests/host/qt/SmallScheme.h"
#include "tests/plugin/resistance/ShippedStore.h"

#include <random>

namespace {

constexpr int kEvents = 400;

class RandomClicks : public PlugInDialogs, public testing::WithParamInterface<unsigned> {
 protected:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

  // One event at a widget that can be seen, in the window on top.
  void act() {
    if (auto* popup = QApplication::activePopupWidget()) popup->close();
    QList<QWidget*> widgets;
    for (auto* widget : top()->findChildren<QWidget*>())
      if (widget->isVisible() && widget->isEnabled()) widgets.append(widget);
    if (widgets.isEmpty()) return;
    QWidget* widget = widgets[below(static_cast<int>(widgets.size()))];
    const QPoint at(below(std::max(widget->width(), 1)), below(std::max(widget->height(), 1)));
    static const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Up,
                                   Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,   Qt::Key_F2,
                                   Qt::Key_Delete, Qt::Key_Space};
    static const char* const texts[] = {"25", "0", "-7", "abc", "甲", "1e400", "\"%s", "20"};
    switch (below(5)) {
    case 0:
      return QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
    case 1:
      return QTest::keyClick(widget, keys[below(static_cast<int>(std::size(keys)))]);
    case 2:
      return typeInto(*widget, texts[below(static_cast<int>(std::size(texts)))]);
    default:
      return QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    }
  }
  // Opens the dialog again as often as the events close it.
  template <class Call> void play(Call call) {
    while (done < kEvents) {
      const Steps steps(static_cast<std::size_t>(kEvents - done), [this] {
        ++done;
        act();
      });
      during(call, steps);
    }
  }
  std::mt19937 random{GetParam()};
  int done = 0;
};

TEST_P(RandomClicks, KeepPipesAsTheyAreShown) {
  auto& catalogue = *CZPPipeMaterialManager::GetInstance();
  pipes::DestroyElements(catalogue.m_arrMaterials);
  play([] { return ZP::ShowPipeMaterialDlg(nullptr); });
  const auto names = [&] {
    CString all;
    for (const CZPPipeMaterial* material : catalogue.m_arrMaterials) {
      all += L"[" + material->GetName() + L"]";
      for (const SZPPipeDNData& row : material->m_arrDNData) all += ZP::ftoa(row.dbNominal, 6, true) + L" ";
    }
    return all;
  };
  const CString before = names();
  pipes::DestroyElements(catalogue.m_arrMaterials);
  catalogue.ReadData();
  EXPECT_EQ(names(), before);
  pipes::DestroyElements(catalogue.m_arrMaterials);
}

TEST_P(RandomClicks, KeepDuctsAsTheyAreShown) {
  auto& catalogue = *CZPDuctMaterialManager::GetInstance();
  const auto empty = [&] {
    pipes::DestroyElements(catalogue.m_arrMaterials);
    pipes::DestroyElements(catalogue.m_arrRectDiameters);
    pipes::DestroyElements(catalogue.m_arrCircleDiameters);
  };
  const auto count = [&] {
    return catalogue.m_arrMaterials.GetSize() * 1000000 + catalogue.m_arrRectDiameters.GetSize() * 1000 +
           catalogue.m_arrCircleDiameters.GetSize();
  };
  empty();
  play([] { return ZP::ShowDuctMaterialDlg(nullptr); });
  const int before = count();
  empty();
  catalogue.ReadData();
  EXPECT_EQ(count(), before);
  empty();
}

TEST_P(RandomClicks, KeepVelocityLimitsUsable) {
  auto& table = *CZPFlowVelocityMng::GetInstance();
  pipes::DestroyElements(table.m_arrLimits);
  play([] { return ZP::ShowFVMngDlg(nullptr); });
  for (const CZPPipeLimit* limit : table.m_arrLimits) EXPECT_FALSE(limit->GetName().IsEmpty());
  pipes::DestroyElements(table.m_arrLimits);
}

TEST_P(RandomClicks, KeepRadiatorsAsTheyAreShown) {
  auto& catalogue = *CZPRadiatorManager::GetInstance();
  const auto empty = [&] {
    while (!catalogue.m_arrTypes.IsEmpty()) catalogue.Remove(catalogue.m_arrTypes[0]);
  };
  empty();
  for (const wchar_t* name : {L"铸铁", L"钢制"}) {
    catalogue.Add(name);
    auto* radiator = new CZPRadiator;
    radiator->SetName(CString(name) + L"一");
    EXPECT_TRUE(catalogue.GetRadiatorType(name)->Add(radiator));
  }
  CZPRadiator* inUse = catalogue.GetInitialRadiator();
  play([&] { return ZP::ShowRadMngDlg(inUse, nullptr); });
  ASSERT_NE(inUse, nullptr);
  EXPECT_EQ(catalogue.GetRadiator(inUse->GetName(), inUse->GetParent()->GetName()), inUse);
  CIDPEx file;
  ASSERT_TRUE(file.Open(ZP::GetSystemPath() + L"HeatingData\\Srq.idp"));
  ASSERT_EQ(file.SubKeyNames.GetSize(), catalogue.m_arrTypes.GetSize());
  for (int i = 0; i < catalogue.m_arrTypes.GetSize(); ++i) {
    const CZPRadiatorType& type = *catalogue.m_arrTypes[i];
    CIDPEx* saved = file.GetSubItem(ZP::itoa(i))->GetSubItem(type.GetName());
    ASSERT_NE(saved, nullptr);
    ASSERT_EQ(saved->SubKeyNames.GetSize(), type.m_arrRadiators.GetSize());
    for (const CZPRadiator* radiator : type.m_arrRadiators)
      EXPECT_NE(saved->GetSubItem(radiator->GetName()), nullptr);
  }
  empty();
}

TEST_P(RandomClicks, KeepSettingsThatCanBe) {
  play([] { return static_cast<int>(CZPSystemSettingsDlg(nullptr).DoModal()); });
  EXPECT_GT(ZP::GetOutDwgScale(), 0);
  EXPECT_GT(ZP::GetZwZg(), 0);
}

TEST_P(RandomClicks, KeepCoefficientsAsTheyAreShown) {
  auto& store = StoreOfShippedData(install);
  play([] { return ZP::ShowLRMDlg(nullptr); });
  store.SaveData();
  FreshStore again;
  int row = 0; // those without a name are not read again
  for (const CZPPipePartsCoe& fitting : store.m_arrPartsCoe) {
    if (fitting.szName.IsEmpty()) continue;
    ASSERT_LT(row, again->m_arrPartsCoe.GetSize());
    EXPECT_EQ(again->m_arrPartsCoe[row++].szName, fitting.szName);
  }
  EXPECT_EQ(again->m_arrPartsCoe.GetSize(), row);
}

TEST_P(RandomClicks, KeepEachFittingOfASectionOnce) {
  StoreOfShippedData(install);
  CZPLocalResistanceSettings section;
  play([&] { return ZP::ShowLRSDlg(section, nullptr); });
  for (int i = 0; i < section.m_arrParts.GetSize(); ++i)
    EXPECT_EQ(section.FindPipeParts(section.m_arrParts[i].GetName()), i) << "each name in one row";
}

TEST_P(RandomClicks, KeepFanCoilsAsTheyAreShown) {
  FanCoilCatalogue catalogue(install);
  // A dialog that has stepped aside for a pick comes back at Escape.
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [this] {
    if (!top()) Desktop::key(Qt::Key_Escape);
  });
  constexpr int every = 20; // milliseconds
  timer.start(every);
  play([] {
    constexpr bool favourites = false;
    return CKTFCUManagerDlg(favourites, nullptr).DoModal();
  });
  catalogue.manager.SaveData();
  const int makers = catalogue.manager.m_arrFactories.GetSize();
  const bool some = catalogue.manager.GetInitialFCU() != nullptr;
  fancoil::DeleteEntries(catalogue.manager.m_arrFactories);
  EXPECT_EQ(catalogue.manager.ReadData(), 1);
  EXPECT_EQ(catalogue.manager.m_arrFactories.GetSize(), makers);
  EXPECT_EQ(catalogue.manager.GetInitialFCU() != nullptr, some);
}

TEST_P(RandomClicks, KeepLayerSchemesUsable) {
  SmallScheme small;
  CZPManagerLayer& scheme = small.scheme;
  play([] { return static_cast<int>(CZPLayerManagerDlg().DoModal()); });
  const auto names = layers::SchemeNames();
  EXPECT_NE(std::find(names.begin(), names.end(), scheme.GetPlanName()), names.end());
  EXPECT_TRUE(scheme.ReadData(scheme.GetPlanName())) << "the scheme that is active has a file";
  EXPECT_TRUE(scheme.IsExist(L"回水")) << "nothing here can delete a layer";
}

TEST_P(RandomClicks, KeepTheCalculationOfRadiatorsGoing) {
  auto& catalogue = *CZPRadiatorManager::GetInstance();
  const auto empty = [&] {
    while (!catalogue.m_arrTypes.IsEmpty()) catalogue.Remove(catalogue.m_arrTypes[0]);
  };
  ZP::SetDefaultValuesFile(CString::FromUtf8((install.Root() / "Defaults.idp").string()));
  empty();
  catalogue.Add(L"铸铁");
  for (const wchar_t* name : {L"四柱", L"柱翼"}) {
    auto* radiator = new CZPRadiator;
    radiator->SetName(name);
    catalogue.GetRadiatorType(L"铸铁")->Add(radiator);
  }
  // Prompts in the drawing, for which the window steps aside, are answered with a place or with Escape.
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, [this] {
    if (!top() && !QApplication::activePopupWidget()) enter(below(2) == 0 ? "0,0" : "*cancel*");
  });
  answers.start(0);
  play([] { return static_cast<int>(CZPRadiatorCalculateDlg(nullptr).DoModal()); });
  EXPECT_TRUE(catalogue.GetInitialRadiator()) << "the one in use can not be deleted";
  empty();
  ZP::SetDefaultValuesFile(L"");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomClicks, testing::Range(1u, 4u));

} // namespace
