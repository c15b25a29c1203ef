// Thousands of random events in the layer manager and in what it opens: tree, table and scheme stay the same,
// and so does what is read back from the file.
#include "host/afx/CFileException.h"
#include "plugin/base/NumberText.h"
#include "plugin/layers/LayerFieldText.h"
#include "tests/plugin/layers/dialogs/LayerManagerFixture.h"
#include "tests/support/UiRobot.h"

namespace {

using namespace dialogtest;

constexpr int kEvents = 3000;

class RandomLayerEvents : public LayerManagerFixture, public testing::WithParamInterface<unsigned> {
 protected:
  RandomLayerEvents() : robot(GetParam()) {
    SaveScheme(L"乙方案", L"甲标识", L"甲层");
    SaveScheme(L"丙方案", L"丙标识", L"丙层");
  }

  void ForeseeAnswers() {
    frontEnd.boxes.clear();
    frontEnd.answers.assign(4, robot.Below(3) == 0 ? IDOK : IDCANCEL);
    frontEnd.colour = robot.Below(2) == 0 ? std::optional<int>(robot.Below(257)) : std::nullopt;
    frontEnd.linetype = robot.Below(2) == 0 ? std::optional<CString>(robot.Text()) : std::nullopt;
    frontEnd.lineWeight = robot.Below(2) == 0 ? std::optional<int>(robot.Below(60) - 3) : std::nullopt;
    editor.lines = {robot.Below(2) == 0 ? Named(onA) : CString(L"*cancel*")};
    frontEnd.runs.clear();
    frontEnd.runs.push_back([this](CDialog& opened) {
      for (int i = 0; i < 4; ++i) robot.Act(opened);
      if (robot.Below(3) != 0) opened.UserEnter();
    });
  }
  // What the layers of a scheme say, one a line. Of those that bear one identifier in a group the file has
  // room for the last, in the place of the first.
  CString Everything() const {
    CString text;
    for (const CZPSystemLayer* category : scheme.Categories()) {
      text += L"[" + category->GetName() + L"]\n";
      for (const CZPGroupLayer* group : category->Groups()) {
        text += L"<" + group->GetName() + L">\n";
        std::vector<const CZPLayer*> kept;
        for (const CZPLayer* layer : group->Layers()) {
          const auto same = std::find_if(kept.begin(), kept.end(), [&](const CZPLayer* other) {
            return other->GetKorLayer() == layer->GetKorLayer();
          });
          if (same == kept.end())
            kept.push_back(layer);
          else
            *same = layer;
        }
        for (const CZPLayer* layer : kept) text += Data(*layer) + L"\n";
      }
    }
    return text;
  }
  static void ExpectRow(const Dlg& dialog, int row, const CZPLayer& layer) {
    ASSERT_EQ(dialog.m_grid.LayerAt(row), &layer);
    ASSERT_EQ(dialog.m_grid.GetItemText(row, layers::kNumberColumn), ZP::itoa(row));
    for (int field = 0; field < static_cast<int>(std::size(kLayerFields)); ++field)
      ASSERT_EQ(Utf8(dialog.m_grid.GetItemText(row, field + 1)),
                Utf8(layers::FieldText(layer.Data(), kLayerFields[field])));
  }
  void ExpectShown(const Dlg& dialog) const {
    const auto shown = dialog.m_tree.Layers();
    ASSERT_EQ(dialog.m_grid.GetRowCount(), 1 + static_cast<int>(shown.size()));
    for (int row = 1; row < dialog.m_grid.GetRowCount(); ++row)
      ExpectRow(dialog, row, *shown[static_cast<std::size_t>(row - 1)]);
    std::vector<const CZPLayerObject*> nodes{&scheme};
    for (const CZPSystemLayer* category : scheme.Categories()) {
      nodes.push_back(category);
      nodes.insert(nodes.end(), category->Groups().begin(), category->Groups().end());
    }
    std::size_t at = 0;
    dialog.m_tree.m_tree.Walk([&](HTREEITEM item) {
      EXPECT_LT(at, nodes.size());
      if (at >= nodes.size()) return false;
      EXPECT_EQ(item->data, nodes[at]);
      EXPECT_EQ(Utf8(item->text), Utf8(nodes[at]->GetName()));
      return item->data == nodes[at++];
    });
    ASSERT_EQ(at, nodes.size());
    ASSERT_EQ(Utf8(dialog.m_schemes.GetText()), Utf8(scheme.GetPlanName()));
  }
  UiRobot robot;
};

TEST_P(RandomLayerEvents, KeepTreeTableAndSchemeAlike) {
  CString before;
  In([&](Dlg& open) {
    for (int i = 0; i < kEvents && !HasFailure() && !open.HasEnded(); ++i) {
      ForeseeAnswers();
      try {
        robot.Act(open);
      } catch (const CFileException&) { // a name that the scheme's file can't have
      }
      ExpectShown(open);
    }
    before = Everything();
    frontEnd.boxes.clear();
    frontEnd.runs.clear();
    EXPECT_TRUE(open.m_ok.UserClick());
  });
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(Utf8(Everything()), Utf8(before)) << "it was read back";
  scheme.SetName(L"全部图层");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLayerEvents, testing::Range(1u, 4u));

} // namespace
