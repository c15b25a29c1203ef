// The fan-coil dialogs over a catalogue, a drawing and remembered values of the test's own.
#pragma once

#include "host/db/AcDbCurves.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/base/DefaultValues.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerAddDlg.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerDlg.h"
#include "plugin/fancoil/dialogs/ShowFanCoilDialogs.h"
#include "tests/plugin/fancoil/CatalogueFixture.h"
#include "tests/support/DialogFixture.h"

class FanCoilDialogs : public CatalogueFixture {
 protected:
  using Dlg = CKTFCUManagerDlg;
  using AddDlg = CKTFCUManagerAddDlg;
  static constexpr const wchar_t* kInstallKey = L"空调水路\\风机盘管\\管理器\\安装形式过滤";
  static constexpr const wchar_t* kStructKey = L"空调水路\\风机盘管\\管理器\\结构形式过滤";
  static constexpr const wchar_t* kListKey = L"空调水路\\风机盘管\\管理器\\常用风机盘管列表";

  FanCoilDialogs() {
    install.Write("Data/KTSLDatabase.xml", R"(<dictionary><item name="Block"/></dictionary>)");
    ZP::SetDefaultValuesFile(CString::FromUtf8((install.Root() / "Defaults.idp").string()));
    acDocManagerPtr()->newDocument();
  }
  ~FanCoilDialogs() override {
    acDocManagerPtr()->closeAll();
    ZP::SetDefaultValuesFile(CString());
  }

  // Two makers: 甲 with A (concealed, horizontal), B (exposed, horizontal) and C (exposed, upright); 乙 with
  // A.
  void AddTwoMakers() {
    first = AddFactory(L"甲");
    AddModel(first, L"A");
    AddModel(first, L"B")->m_data.szInstallStyle = L"明装";
    CFCUEquipment* upright = AddModel(first, L"C");
    upright->m_data.szInstallStyle = L"明装";
    upright->m_data.szStructStyle = L"立式";
    second = AddFactory(L"乙");
    AddModel(second, L"A");
  }
  CFCUEquipment* Find(const wchar_t* model, const wchar_t* maker) const {
    return catalogue.GetFCUEquipment(model, maker);
  }

  // The manager in full edit mode.
  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(false, nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  int InFavourites(const std::function<void(Dlg&)>& test) {
    Dlg dialog(true, nullptr);
    return dialogtest::Run<Dlg>(frontEnd, dialog, test);
  }
  int InAdd(const std::function<void(AddDlg&)>& test) {
    AddDlg dialog(L"甲", nullptr);
    return dialogtest::Run<AddDlg>(frontEnd, dialog, test);
  }
  int InChange(CFCUEquipment& equipment, const std::function<void(AddDlg&)>& test) {
    AddDlg dialog(equipment, nullptr);
    return dialogtest::Run<AddDlg>(frontEnd, dialog, test);
  }
  // What is done in the dialog that the next click opens.
  void Next(std::function<void(AddDlg&)> test) {
    frontEnd.runs.push_back(
        [test = std::move(test)](CDialog& dialog) { test(static_cast<AddDlg&>(dialog)); });
  }

  static void Set(CPropTree& list, const wchar_t* label, const CString& text) {
    EXPECT_TRUE(list.UserSetText(list.FindItem(label), text)) << CString(label).ToUtf8();
  }
  static CString Text(const CPropTree& list, const wchar_t* label) {
    return list.GetText(list.FindItem(label));
  }
  static HTREEITEM Item(const CTreeCtrl& tree, const CString& text) {
    return tree.Find([&](const UiTreeItem& item) { return item.text == text; });
  }
  // "风机盘管(甲(A B )乙(A ))", the selected item in brackets.
  using CatalogueFixture::Outline;
  static CString Outline(const CTreeCtrl& tree) {
    CString text;
    for (const auto& item : tree.TopItems()) text += Outline(tree, *item);
    return text;
  }
  static CString Outline(const CTreeCtrl& tree, const UiTreeItem& item) {
    CString text = tree.GetSelectedItem() == &item ? L"[" + item.text + L"]" : item.text;
    if (item.children.empty()) return text + L" ";
    text += L"(";
    for (const auto& child : item.children) text += Outline(tree, *child);
    return text + L")";
  }
  static CString Entries(const CListBox& list) {
    CString text;
    for (int i = 0; i < list.GetCount(); ++i)
      text += (i == list.GetCurSel() ? L"[" + list.GetText(i) + L"]" : list.GetText(i)) + L" ";
    return text;
  }
  static CString Remembered(const wchar_t* key) {
    CString text = L"unset";
    ZP::GetDefaultValue(key, text);
    return text;
  }

  // An L of two lines from (100,200), 60 wide and 30 high.
  static void Draw() {
    for (const AcGePoint3d& end : {AcGePoint3d(160, 200, 0), AcGePoint3d(100, 230, 0)})
      ASSERT_EQ(ArxDbgUtils::addToCurrentSpaceAndClose(new AcDbLine({100, 200, 0}, end)), Acad::eOk);
  }
  // The answers to a pick of everything that is drawn.
  void TypePick() { user.type({L"all", L"", L"100,200", L"110,205"}); }
  CString BlockPath(const CString& name) const {
    return CString::FromUtf8((install.Root() / "Data/FCUDwg").string()) + L"/" + name + L".Dwg";
  }

  UiFrontEndScript frontEnd;
  CFCUFactory* first = nullptr;
  CFCUFactory* second = nullptr;
};
