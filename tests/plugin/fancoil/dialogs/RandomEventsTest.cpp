// Thousands of random events in the fan-coil dialogs: the tree shows what the catalogue holds, and so does
// what is read back from the file.
#include <set>

#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"
#include "tests/support/UiRobot.h"

namespace {

// Fewer than elsewhere, since each dialog that is opened writes the catalogue to the disk.
constexpr int kEvents = 1500;

class RandomFanCoilEvents : public FanCoilDialogs, public testing::WithParamInterface<unsigned> {
 protected:
  RandomFanCoilEvents() {
    AddTwoMakers();
    Draw();
  }

  // What the user does next: answers, a line or two at the prompts, and a while in the dialog that may open.
  void Prepare() {
    frontEnd.boxes.clear();
    frontEnd.answers.assign(8, robot.Below(4) == 0 ? IDOK : IDCANCEL);
    frontEnd.runs.assign(1, [this](CDialog& dialog) {
      for (int i = robot.Below(8); i > 0; --i) {
        TypeSomething();
        robot.Act(dialog);
      }
      auto& add = static_cast<AddDlg&>(dialog);
      if (robot.Below(3) == 0) Set(add.m_properties, L"设备型号", L"M" + ZP::itoa(robot.Below(40)));
      if (robot.Below(2) == 0) add.m_ok.UserClick();
    });
  }
  void TypeSomething() {
    user.lines.clear();
    user.prompts.clear();
    switch (robot.Below(4)) {
    case 0:
      return TypePick();
    case 1:
      return user.type({L"", L"all", L"", L"*cancel*"});
    case 2:
      return user.type({L"all", L"", L"1,2", L"abc"});
    default:
      return;
    }
  }
  // Every item is that of a maker or model in its place; without a filter none is missing.
  void ExpectSame(const Dlg& dialog) {
    HTREEITEM root = dialog.m_tree.GetRootItem();
    ASSERT_TRUE(root);
    ASSERT_EQ(static_cast<int>(root->children.size()), catalogue.m_arrFactories.GetSize());
    const bool all = dialog.m_install.GetCurSel() == 0 && dialog.m_structure.GetCurSel() == 0;
    for (int i = 0; i < catalogue.m_arrFactories.GetSize(); ++i) {
      const UiTreeItem& maker = *root->children[static_cast<std::size_t>(i)];
      const CFCUFactory* factory = catalogue.m_arrFactories[i];
      ASSERT_EQ(maker.data, factory);
      const std::set<const void*> models(factory->m_arrEquipments.begin(), factory->m_arrEquipments.end());
      for (const auto& model : maker.children) ASSERT_TRUE(models.contains(model->data));
      if (all) {
        ASSERT_EQ(maker.children.size(), models.size());
      }
    }
    const CFCUEquipment* current = dialog.Equipment();
    ASSERT_TRUE(!current || Text(dialog.m_properties, L"设备型号") == current->GetName());
  }
  // Of models with one name the file keeps the first.
  CString Everything() const {
    CString text;
    for (const CFCUFactory* factory : catalogue.m_arrFactories) {
      text += L"[" + factory->GetName() + L"]";
      std::set<std::wstring> names;
      for (const CFCUEquipment* equipment : factory->m_arrEquipments) {
        const SKTFCUEquipmentData& data = equipment->m_data;
        if (!names.insert(std::wstring(data.szMode.View())).second) continue;
        text += data.szMode + L"," + data.szInstallStyle + L"," + data.szStructStyle + L"," + data.szDwgPath +
                L"," + data.szFanStyle;
        for (const double number : {data.dbPower, data.dbLength, data.dbCadLength, data.dbWaterFlow})
          text += L" " + ZP::ftoa(number, 9, true);
        text += L" " + ZP::itoa(data.nFanCount) + L";";
      }
    }
    return text;
  }
  UiRobot robot{GetParam()};
};

TEST_P(RandomFanCoilEvents, KeepTreeAndCatalogueAlike) {
  In([&](Dlg& dialog) {
    for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
      Prepare();
      robot.Act(dialog);
      ExpectSame(dialog);
    }
    frontEnd.runs.clear();
    frontEnd.boxes.clear();
    EXPECT_TRUE(dialog.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  const CString before = Everything();
  ASSERT_EQ(Reload(), 1);
  EXPECT_EQ(dialogtest::Utf8(Everything()), dialogtest::Utf8(before));
}

TEST_P(RandomFanCoilEvents, KeepFavouritesAndTheirListAlike) {
  const CString before = Everything();
  InFavourites([&](Dlg& dialog) {
    for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
      Prepare();
      robot.Act(dialog);
      ExpectSame(dialog);
    }
    frontEnd.runs.clear();
    frontEnd.boxes.clear();
    const CString shown = Entries(dialog.m_favourites.m_list);
    EXPECT_TRUE(dialog.m_ok.UserClick());
    ASSERT_EQ(dialog.HasEnded(), !shown.IsEmpty());
    if (shown.IsEmpty()) return;
    const CString remembered = Remembered(kListKey);
    for (int i = 0; i < dialog.m_favourites.m_list.GetCount(); ++i)
      EXPECT_GE(remembered.Find(dialog.m_favourites.m_list.GetText(i) + L";"), 0);
  });
  EXPECT_EQ(dialogtest::Utf8(Everything()), dialogtest::Utf8(before)) << "the catalogue is for reading";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomFanCoilEvents, testing::Range(1u, 3u));

} // namespace
