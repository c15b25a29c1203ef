// What users should not do to the manager of radiators and its window for one radiator, and do: the catalogue
// holds what was shown, and what is read back from the file is what the catalogue held.
#include "host/afx/MessageLog.h"
#include "plugin/radiators/dialogs/CZPAddRadiatorDlg.h"
#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"
#include "tests/plugin/radiators/RadiatorText.h"
#include "tests/plugin/radiators/dialogs/RadiatorDialogs.h"
#include "tests/support/AwkwardNames.h"
#include "tests/support/ReadOnlyFolder.h"

namespace {

using namespace dialogtest;

class BadRadiatorInput : public RadiatorDialogs {
 protected:
  void In(CZPRadiator* inUse, const std::function<void(CZPRadiatorManagerDlg&)>& test) {
    CZPRadiatorManagerDlg dialog(inUse, nullptr);
    dialogtest::Run<CZPRadiatorManagerDlg>(frontEnd, dialog, test);
  }
  // Adds or modifies under these names by the manager's button.
  void EnterNames(CButton& button, const CString& typeName, const CString& name) {
    frontEnd.runs.push_back([&](CDialog& dialog) {
      auto& window = static_cast<CZPAddRadiatorDlg&>(dialog);
      EXPECT_TRUE(window.m_properties.UserSetText(Item::typeItem, typeName));
      EXPECT_TRUE(window.m_properties.UserSetText(Item::nameItem, name));
      EXPECT_TRUE(window.m_ok.UserClick());
    });
    EXPECT_TRUE(button.UserClick());
  }
  static std::vector<CString> GoodAwkwardNames() {
    auto names = AwkwardNames();
    std::erase_if(names, [](const CString& name) { return CString(name).Trim().IsEmpty(); });
    names.push_back(CString(std::wstring(100000, L'片')));
    return names;
  }
};

TEST_F(BadRadiatorInput, ThatIsNoNumberCountsAsZeroInEveryNumber) {
  struct {
    CZPRadiator* radiator;
    std::vector<std::pair<Item, double CZPRadiator::*>> numbers;
  } const fields[] = {
      {column, {{Item::aItem, &CZPRadiator::m_dA}, {Item::bItem, &CZPRadiator::m_dB}}},
      {finned,
       {{Item::aItem, &CZPRadiator::m_dC},
        {Item::bItem, &CZPRadiator::m_dD},
        {Item::areaItem, &CZPRadiator::m_dF}}},
      {panel, {{Item::outputItem, &CZPRadiator::m_dQs}}},
  };
  for (const auto& [radiator, numbers] : fields)
    for (const auto& [item, number] : numbers)
      for (const wchar_t* text : kNoNumbers)
        In(radiator, [&](CZPRadiatorManagerDlg& dialog) {
          radiator->*number = 5;
          EXPECT_TRUE(dialog.m_properties.UserSetText(item, text));
          EXPECT_EQ(radiator->*number, 0) << Utf8(text);
        });
  EXPECT_TRUE(frontEnd.boxes.empty());
}

TEST_F(BadRadiatorInput, BeyondTheRangeOfNumbersIsKept) {
  In(column, [&](CZPRadiatorManagerDlg& dialog) {
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::aItem, L"1e999"));
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::bItem, L"-1e999"));
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::aItem, CString(std::wstring(100000, L'9'))));
  });
  const CString before = RadiatorText(*column);
  Reload();
  EXPECT_EQ(RadiatorText(*catalogue.GetRadiator(L"四柱", L"铸铁")), before);
  EXPECT_NE(before.Find(L"实验系数a=inf|实验系数b=-inf"), -1);
}

TEST_F(BadRadiatorInput, InTheNamesOfANewRadiatorIsKeptAsItIs) {
  for (const CString& name : GoodAwkwardNames()) {
    In(nullptr, [&](CZPRadiatorManagerDlg& dialog) { EnterNames(dialog.m_add, name, name); });
    EXPECT_TRUE(frontEnd.boxes.empty()) << Utf8(name.Left(20));
    Reload();
    const CZPRadiatorType* type = catalogue.GetRadiatorType(CString(name).Trim());
    ASSERT_NE(type, nullptr) << Utf8(name.Left(20));
    EXPECT_NE(type->GetRadiator(name), nullptr) << Utf8(name.Left(20));
  }
}

TEST_F(BadRadiatorInput, InTheNamesOfAChangedRadiatorIsKeptAsItIs) {
  for (const CString& name : GoodAwkwardNames()) {
    CZPRadiatorType* first = catalogue.m_arrTypes[0];
    In(first->m_arrRadiators[0], [&](CZPRadiatorManagerDlg& dialog) {
      EnterNames(dialog.m_modify, first->GetName(), name);
      EXPECT_TRUE(dialog.m_modify.IsWindowEnabled());
      EXPECT_EQ(dialog.m_properties.GetText(Item::nameItem), name);
    });
    EXPECT_TRUE(frontEnd.boxes.empty()) << Utf8(name.Left(20));
    Reload();
    EXPECT_EQ(Utf8(Names()), Utf8(L"铸铁(" + name + L" 柱翼) 钢制(板型) 空()"));
  }
}

TEST_F(BadRadiatorInput, InATypesNameMovesTheRadiator) {
  for (const CString& name : GoodAwkwardNames()) {
    CZPRadiator* moved = catalogue.GetRadiator(L"四柱", L"");
    In(moved, [&](CZPRadiatorManagerDlg& dialog) { EnterNames(dialog.m_modify, name, L"四柱"); });
    EXPECT_TRUE(frontEnd.boxes.empty()) << Utf8(name.Left(20));
    Reload();
    EXPECT_NE(catalogue.GetRadiator(L"四柱", CString(name).Trim()), nullptr) << Utf8(name.Left(20));
  }
}

TEST_F(BadRadiatorInput, ThatIsRefusedAsANameTellsAllOfIt) {
  const CString name(std::wstring(100000, L'长') + L"\n\"%s\U0001F600");
  AddRadiator(iron, name);
  In(column, [&](CZPRadiatorManagerDlg& dialog) { EnterNames(dialog.m_modify, L"铸铁", name); });
  EXPECT_EQ(frontEnd.takeBox(), L"散热器【" + name + L"】重名，请重新定义散热器类型！");
  EXPECT_EQ(iron->m_arrRadiators[0]->GetName(), L"四柱");
}

TEST_F(BadRadiatorInput, IntoAFolderThatIsReadOnlyLeavesTheFileAndTellsTheLog) {
  In(column, [](CZPRadiatorManagerDlg&) {});
  const std::string before = install.Read(kFile);
  afx::ClearLoggedMessages();
  const auto changeUnit = [](CZPRadiatorManagerDlg& dialog) {
    EXPECT_TRUE(dialog.m_properties.UserSetText(Item::unitItem, L"m"));
  };
  {
    const ReadOnlyFolder folder((install.Root() / kFile).parent_path());
    if (!folder.Holds()) GTEST_SKIP() << "permissions do not hold root back";
    In(column, changeUnit);
  }
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_FALSE(afx::LoggedMessages().empty());
  EXPECT_TRUE(frontEnd.boxes.empty());
  EXPECT_EQ(column->m_strUnit, L"m") << "nothing is lost while the program runs";
  In(column, [](CZPRadiatorManagerDlg&) {});
  EXPECT_NE(install.Read(kFile), before) << "the next time it is written";
}

} // namespace
