// Thousands of random events in the manager of radiators and in the windows that it opens: the tree and the
// property list show what the catalogue holds, no radiator that is in use goes, and the file reads back
// equal.
#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"
#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"
#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/plugin/radiators/dialogs/RadiatorDialogs.h"
#include "tests/support/UiRobot.h"

namespace {

using namespace dialogtest;
using Dlg = CZPRadiatorManagerDlg;

constexpr int kEvents = 3000;

class RandomRadiatorEvents : public RadiatorDialogs, public testing::WithParamInterface<unsigned> {
 protected:
  RandomRadiatorEvents() : robot(GetParam()) {}

  // The next message boxes are answered at random, and the next window is left somehow after a few events.
  void Prepare() {
    frontEnd.boxes.clear();
    frontEnd.answers.assign(8, robot.Below(5) == 0 ? IDOK : IDCANCEL);
    frontEnd.runs.assign(1, [this](CDialog& dialog) {
      auto& window = static_cast<CZPAddRadiatorDlg&>(dialog);
      if (robot.Below(3) == 0) { // names that can be
        window.m_properties.UserSetText(Item::typeItem, Name(L"材", 4));
        window.m_properties.UserSetText(Item::nameItem, Name(L"型", 8));
      }
      for (int i = robot.Below(8); i > 0 && !window.HasEnded(); --i) {
        robot.Act(window);
        if (robot.Below(3) == 0) window.m_ok.UserClick();
      }
      if (robot.Below(2) == 0) window.m_ok.UserClick();
      if (robot.Below(2) == 0) window.UserEscape();
    });
  }
  CString Name(const wchar_t* kind, int count) {
    CString name;
    name.Format(L"%s%d", kind, robot.Below(count));
    return name;
  }
  void ExpectSameTree(const Dlg& dialog) {
    HTREEITEM root = dialog.m_tree.GetRootItem();
    ASSERT_EQ(dialog.m_tree.TopItems().size(), 1u);
    ASSERT_EQ(static_cast<int>(root->children.size()), catalogue.m_arrTypes.GetSize());
    for (int i = 0; i < catalogue.m_arrTypes.GetSize(); ++i) {
      const UiTreeItem& shown = *root->children[static_cast<std::size_t>(i)];
      const auto& radiators = catalogue.m_arrTypes[i]->m_arrRadiators;
      ASSERT_EQ(Utf8(shown.text), Utf8(catalogue.m_arrTypes[i]->GetName()));
      ASSERT_EQ(static_cast<int>(shown.children.size()), radiators.GetSize());
      for (int j = 0; j < radiators.GetSize(); ++j)
        ASSERT_EQ(Utf8(shown.children[static_cast<std::size_t>(j)]->text), Utf8(radiators[j]->GetName()));
    }
  }
  static void ExpectSameProperties(const Dlg& dialog) {
    HTREEITEM item = dialog.m_tree.GetSelectedItem();
    ASSERT_EQ(dialog.m_remove.IsWindowEnabled(), dialog.Level() > 0);
    ASSERT_EQ(dialog.m_modify.IsWindowEnabled(), dialog.Level() == 2);
    if (dialog.Level() != 2) return;
    const auto& radiator = *static_cast<CZPRadiator*>(static_cast<CZPRadiatorObject*>(item->data));
    CZPRadiator read(radiator);
    dialog.m_properties.Read(read);
    ASSERT_EQ(Utf8(RadiatorText(read)), Utf8(RadiatorText(radiator)));
  }
  CString Everything() const {
    CString text;
    for (const CZPRadiatorType* type : catalogue.m_arrTypes) {
      text += L"[" + type->GetName() + L"]";
      for (const CZPRadiator* radiator : type->m_arrRadiators) text += RadiatorText(*radiator) + L"\n";
    }
    return text;
  }
  int Count() const {
    int count = 0;
    for (const CZPRadiatorType* type : catalogue.m_arrTypes) count += type->m_arrRadiators.GetSize();
    return count;
  }
  bool Holds(const CZPRadiator* radiator) const {
    for (const CZPRadiatorType* type : catalogue.m_arrTypes)
      for (const CZPRadiator* other : type->m_arrRadiators)
        if (other == radiator) return true;
    return false;
  }
  UiRobot robot;
};

TEST_P(RandomRadiatorEvents, KeepTreeAndCatalogueAlike) {
  int added = 0, moved = 0, deleted = 0;
  const bool used = robot.Below(2) == 0;
  {
    Dlg dialog(used ? column : nullptr, nullptr);
    dialogtest::Run<Dlg>(frontEnd, dialog, [&](Dlg& open) {
      for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
        Prepare();
        const int before = Count();
        const CZPRadiator* const inUse = open.InUse();
        robot.Act(open);
        added += Count() > before;
        deleted += Count() < before;
        moved += open.InUse() != inUse;
        ExpectSameTree(open);
        ExpectSameProperties(open);
        ASSERT_TRUE(!used || Holds(open.InUse()));
      }
      frontEnd.boxes.clear();
      frontEnd.runs.clear();
    });
  }
  EXPECT_GT(added, 20);
  EXPECT_GT(deleted, 10);
  EXPECT_TRUE(!used || moved > 0) << "the one in use became another object";
  EXPECT_TRUE(frontEnd.boxes.empty()) << "no word while the window closes";
  const CString before = Everything();
  Reload();
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRadiatorEvents, testing::Range(1u, 7u));

} // namespace
