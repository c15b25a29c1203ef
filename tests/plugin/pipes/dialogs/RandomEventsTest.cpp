// Thousands of random events in each dialog: what it shows and what the catalogue holds stay the same, and so
// does what is read back from the file afterwards.
#include <gtest/gtest.h>

#include "plugin/pipes/dialogs/CZPDuctManagerDlg.h"
#include "plugin/pipes/dialogs/CZPFlowVelocityMngDlg.h"
#include "plugin/pipes/dialogs/CZPPipeManagerDlg.h"
#include "tests/plugin/pipes/CatalogueFixture.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/plugin/pipes/limits/LimitFixture.h"
#include "tests/support/DialogFixture.h"
#include "tests/support/UiRobot.h"

namespace {

using namespace dialogtest;

constexpr int kEvents = 3000;

void AnswerAtRandom(UiFrontEndScript& frontEnd, UiRobot& robot) {
  frontEnd.boxes.clear();
  frontEnd.answers.assign(8, robot.Below(3) == 0 ? IDOK : IDCANCEL);
}

// Rows of the list are the materials of the catalogue in its order, by pointer and, unless one is being
// edited, name.
template <class List, class Array> void ExpectSameMaterials(const List& list, const Array& materials) {
  ASSERT_EQ(list.GetRowCount(), materials.GetSize());
  for (int row = 0; row < list.GetRowCount(); ++row) {
    ASSERT_EQ(list.GetRowData(row), materials[row]);
    ASSERT_EQ(Utf8(list.GetItemText(row, 0)), Utf8(materials[row]->GetName()));
  }
}

class RandomPipeEvents : public CatalogueFixture, public testing::WithParamInterface<unsigned> {
 protected:
  CString Everything() const {
    CString text;
    for (const CZPPipeMaterial* material : catalogue.m_arrMaterials) {
      text += L"[" + material->GetName() + L"]" + material->m_strPrefix + material->m_strConnector +
              material->m_strSuffix;
      for (const SZPPipeDNData& row : material->m_arrDNData)
        for (const double number : {row.dbNominal, row.dbOuter, row.dbInner, row.dbThickness})
          text += L" " + ZP::ftoa(number, 9, true);
    }
    return text;
  }
  UiFrontEndScript frontEnd;
};

TEST_P(RandomPipeEvents, KeepListAndCatalogueAlike) {
  UiRobot robot(GetParam());
  CZPPipeMaterial* inUse = AddNamed(L"镀锌钢管");
  AddNamed(L"PPR");
  {
    CZPPipeManagerDlg dialog(robot.Below(2) == 0 ? inUse : nullptr, nullptr);
    dialogtest::Run<CZPPipeManagerDlg>(frontEnd, dialog, [&](CZPPipeManagerDlg& open) {
      for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
        AnswerAtRandom(frontEnd, robot);
        robot.Act(open);
        ExpectSameMaterials(open.m_materials.m_list, catalogue.m_arrMaterials);
        const CZPPipeMaterial* current = open.m_materials.Current();
        ASSERT_EQ(open.m_rows.GetRowCount(), current ? current->m_arrDNData.GetSize() : 0);
      }
      frontEnd.boxes.clear();
    });
    if (dialog.Material() == inUse) {
      EXPECT_NE(catalogue.GetPipeMaterial(inUse->GetName()), nullptr);
    }
  }
  EXPECT_TRUE(frontEnd.boxes.empty()) << "no word while the window closes";
  const CString before = Everything();
  Reload();
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomPipeEvents, testing::Range(1u, 4u));

class RandomDuctEvents : public DuctFixture, public testing::WithParamInterface<unsigned> {
 protected:
  UiFrontEndScript frontEnd;
};

TEST_P(RandomDuctEvents, KeepListAndCatalogueAlike) {
  UiRobot robot(GetParam());
  AddNamed(L"镀锌钢板");
  AddNamed(L"玻璃钢");
  AddRect(320, 200);
  AddCircle(100);
  {
    CZPDuctManagerDlg dialog(nullptr, nullptr);
    dialogtest::Run<CZPDuctManagerDlg>(frontEnd, dialog, [&](CZPDuctManagerDlg& open) {
      for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
        AnswerAtRandom(frontEnd, robot);
        robot.Act(open);
        ExpectSameMaterials(open.m_materials.m_list, catalogue.m_arrMaterials);
        const CZPDuctMaterial* current = open.m_materials.Current();
        constexpr int headingAndEmptyRow = 2;
        ASSERT_EQ(open.m_thickness.GetRowCount(),
                  current ? current->m_arrThickness.GetSize() + headingAndEmptyRow : 1);
        const auto& sizes =
            open.m_shapes.GetCurSel() == 1 ? catalogue.m_arrCircleDiameters : catalogue.m_arrRectDiameters;
        ASSERT_EQ(open.m_sizes.GetRowCount(), sizes.GetSize() + headingAndEmptyRow);
        for (int row = 0; row < sizes.GetSize(); ++row)
          ASSERT_EQ(open.m_sizes.GetRowData(row + 1), sizes[row]);
      }
      frontEnd.boxes.clear();
    });
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
  const CString before = Everything();
  Reload();
  EXPECT_EQ(Utf8(Everything()), Utf8(before));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDuctEvents, testing::Range(1u, 4u));

class RandomLimitEvents : public LimitFixture, public testing::WithParamInterface<unsigned> {
 protected:
  UiFrontEndScript frontEnd;
};

TEST_P(RandomLimitEvents, KeepGridAndTableAlike) {
  UiRobot robot(GetParam());
  AddRow(L"20");
  AddRow(L"25");
  {
    CZPFlowVelocityMngDlg dialog(nullptr);
    dialogtest::Run<CZPFlowVelocityMngDlg>(frontEnd, dialog, [&](CZPFlowVelocityMngDlg& open) {
      for (int i = 0; i < kEvents && !HasFatalFailure(); ++i) {
        AnswerAtRandom(frontEnd, robot);
        robot.Act(open);
        constexpr int headingAndEmptyRow = 2;
        ASSERT_EQ(open.m_grid.GetRowCount(), table.m_arrLimits.GetSize() + headingAndEmptyRow);
        for (int row = 0; row < table.m_arrLimits.GetSize(); ++row) {
          ASSERT_EQ(open.m_grid.GetRowData(row + 1), table.m_arrLimits[row]);
          ASSERT_EQ(Utf8(open.m_grid.GetItemText(row + 1, 0)), Utf8(table.m_arrLimits[row]->GetName()));
        }
      }
      frontEnd.boxes.clear();
      while (table.m_arrLimits.IsEmpty()) open.m_grid.UserChoose(1, 0, L"15");
    });
  }
  EXPECT_TRUE(frontEnd.boxes.empty());
  // Renaming may give a row the name of another; of those the file keeps the first.
  CString before;
  for (int i = 0; i < table.m_arrLimits.GetSize(); ++i) {
    const CZPPipeLimit* limit = table.m_arrLimits[i];
    if (table.GetPipeLimit(limit->GetName(), 0) == limit)
      before += (before.IsEmpty() ? L"" : L" ") + limit->GetName();
  }
  Reload();
  EXPECT_EQ(Utf8(Names()), Utf8(before));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLimitEvents, testing::Range(1u, 4u));

} // namespace
