// The plug-in as it is shipped: one file that the host loads and siblings link against.
#include <dlfcn.h>
#include <gmock/gmock.h>

#include <cstdio>
#include <memory>
#include <set>

#include "host/afx/MessageLog.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxDynamicLinker.h"
#include "host/ui/CFrameWnd.h"
#include "tests/support/ScriptedEditor.h"
#include "tests/support/TempInstall.h"
#include "tests/support/UiFrontEndScript.h"

namespace {

const CString kFile = CString::FromUtf8(ZP_PLUGIN_FILE);

// The names that can be seen from outside, demangled.
std::set<std::string> VisibleNames() {
  std::set<std::string> names;
  const std::string command = std::string(ZP_NM) + " -DC --defined-only '" + ZP_PLUGIN_FILE + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> output(popen(command.c_str(), "r"), pclose);
  char line[4096];
  while (output && std::fgets(line, sizeof line, output.get())) {
    std::string name(line);
    while (!name.empty() && name.back() == '\n') name.pop_back();
    names.insert(name.size() > 19 ? name.substr(19) : name); // address, blank, kind, blank
  }
  return names;
}

TEST(PlugInFile, ShowsWhatSiblingsCall) {
  const auto names = VisibleNames();
  for (const char* name : {
           "acrxEntryPoint",
           "acrxGetApiVersion",
           "CZPPipeMaterialManager::GetInstance()",
           "CZPPipeMaterial::GetLabelText(CString const&) const",
           "ZP::GetDNFromPreDN(CString const&)",
           "ZP::ShowPipeMaterialDlg(CWnd*)",
           "ZP::ShowPipeMaterialDlg(CZPPipeMaterial*&, CWnd*)",
           "ZP::ShowDuctMaterialDlg(CWnd*)",
           "ZP::ShowDuctMaterialDlg(CZPDuctMaterial*&, CWnd*)",
           "ZP::ShowFVMngDlg(CWnd*)",
           "ZP::ShowRadMngDlg(CWnd*)",
           "ZP::ShowRadMngDlg(CZPRadiator*&, CWnd*)",
           "ZP::ShowLRMDlg(CWnd*)",
           "ZP::ShowLRSDlg(CZPLocalResistanceSettings&, CWnd*)",
           "CZPLocalResistanceMng::GetInstance()",
           "CZPLocalResistanceMng::SaveData()",
           "CZPPipePartsCoe::GetCoe(CString const&) const",
           "CZPLocalResistanceSettings::GetCoefficient() const",
           "CZPLocalResistanceSettings::Plus(CZPLocalResistanceSettings const&)",
           "vtable for CZPLocalResistanceSettings",
           "CZPManagerLayer::GetInstance()",
           "CZPSystemLayer::Add(CZPGroupLayer*)",
           "vtable for CZPLayer",
           "typeinfo for CZPLayer",
           "vtable for CZPManagerLayer",
           "ZP::GetUserLayer(CString const&)",
           "ZP::GetKOrLayer(CString const&, CString&)",
           "ZP::GetMngUserLayer(CString const&)",
           "ZP::IsSameKOrLayer(CString const&, CString const&)",
           "ZP::SetUserLayerTableRecord(AcDbLayerTableRecord*, CString const&)",
           "ZP::CheckLayerCanEdit(CString const&, bool)",
           "ZP::CheckLayerCanEdit(CStringArray const&, bool)",
           "ZP::RestoreLayersStatus()",
           "ZP::SetPolyLineWidth(AcArray<AcDbObjectId> const&, bool)",
           "ZP::SetPolyLineWidth(AcDbPolyline*, bool)",
           "ZP::SetXdata(AcDbObjectId, wchar_t const*, CString)",
           "ZP::GetXdata(AcDbObject*, wchar_t const*, CString&)",
           "ZP::GetEntityLayer(AcDbObjectId const&, CString&)",
           "ZP::GetOutDwgScale()",
           "ZP::SetOutDwgScale(double)",
           "ZP::SetFontType(int)",
           "ZP::SetTextAttribute(AcDbText*, int)",
           "ZP::DragGenEntity(AcArray<AcDbObjectId> const&, AcGePoint3d const&, bool)",
           "ZP::GetXRecord(AcDbObjectId, CString, resbuf*&)",
           "ZP::SelectedSingleVkDbHvacSpace(AcDbObjectId&)",
           "ZP::GetTQRoom(AcDbObjectId const&, CTQRoom*)",
           "ZP::GetSelHvacSpaceHMLoad(double&, double&)",
           "ZP::GetSelHvacSpaceCMLoad(double&, double&)",
           "ZP::GetSelHvacSpaceWinData(double&, double&)",
           "CTQStorage::ReadRoom(CTQRoom*, CIDPEx*)",
           "vtable for CTQRoom",
           "VkDbHvacSpace::desc()",
           "vtable for VkDbHvacSpace",
           "CIDPEx::Open(CString)",
           "ZP::ftoa(double, int, bool)",
       })
    EXPECT_TRUE(names.contains(name)) << name;
}

TEST(PlugInFile, HidesEverythingElse) {
  for (const std::string& name : VisibleNames()) {
    EXPECT_EQ(name.find("CZPGroupLayer::"), std::string::npos) << name;
    EXPECT_EQ(name.find("for CZPGroupLayer"), std::string::npos) << name;
    for (const char* internal :
         {"layers::", "pipes::", "notice::", "dialogs::", "CZPPipeManagerDlg",
          "module::", "xdata::", "idp::", "simdjson", "CommandTable", "VkDefineCommand", "DocumentData",
          "AsdkDataManager", "CCADLayerControlBar", "CCADGroupLayer", "CCADManagerLayer"})
      EXPECT_NE(name.rfind(internal, 0), 0u) << name;
    EXPECT_NE(name.rfind("std::", 0), 0u) << name;
  }
}

class LoadedPlugIn : public testing::Test {
 protected:
  ~LoadedPlugIn() override { acrxDynamicLinkerPtr()->unloadModule(kFile); }
  static bool IsMapped() {
    void* handle = dlopen(ZP_PLUGIN_FILE, RTLD_NOW | RTLD_NOLOAD);
    if (handle) dlclose(handle);
    return handle != nullptr;
  }
  ScriptedEditor editor;
};

TEST_F(LoadedPlugIn, HasItsCommandsUntilItIsUnloaded) {
  ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(kFile)) << acrxDynamicLinkerPtr()->lastError().ToUtf8();
  EXPECT_NE(acedRegCmds->lookupCmd(L"KOR_GJGLQ"), nullptr);
  EXPECT_NE(acedRegCmds->lookupCmd(L"kor_srqjs"), nullptr);
  editor.Run(L"KOR_DKQBTC");
  EXPECT_TRUE(editor.refused.empty());
  EXPECT_FALSE(acrxDynamicLinkerPtr()->isApplicationLocked(kFile)) << "it unlocks itself";
  EXPECT_TRUE(acrxDynamicLinkerPtr()->unloadModule(kFile));
  EXPECT_EQ(acedRegCmds->lookupCmd(L"KOR_GJGLQ"), nullptr);
  EXPECT_FALSE(acedRegCmds->hasGroup(L"QR"));
}

TEST_F(LoadedPlugIn, LeavesNothingInMemoryWhenItIsUnloaded) {
  ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(kFile));
  EXPECT_TRUE(IsMapped());
  ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(kFile));
  EXPECT_FALSE(IsMapped());
  acDocManagerPtr()->closeDocument(&acDocManagerPtr()->newDocument()); // its observer must be gone too
}

TEST_F(LoadedPlugIn, TakesItsBarAndWhatTheBarHasLeftWithIt) {
  const TempInstall install; // the dialog saves as it goes
  UiFrontEndScript windows;
  CFrameWnd frame;
  editor.frame = &frame;
  ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(kFile));
  editor.Run(L"KOR_CADTCKZ");
  ASSERT_EQ(windows.shown.size(), 1u);
  AcApDocument* other = &acDocManagerPtr()->newDocument();
  editor.Run(L"KOR_CADTCFZ");
  EXPECT_EQ(windows.gone.front(), windows.shown[0]) << "the groups may be others now";
  editor.Run(L"KOR_CADTCKZ");
  ASSERT_EQ(windows.shown.size(), 2u);
  windows.gone.clear();
  ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(kFile));
  EXPECT_FALSE(IsMapped());
  EXPECT_FALSE(windows.gone.empty());
  // Nothing of the plug-in is told of layers any more.
  WorkingDrawing::AddLayerTo(*other->database(), L"甲");
  EXPECT_EQ(acDocManagerPtr()->closeDocument(other), Acad::eOk);
  WorkingDrawing::AddLayerTo(editor.Database(), L"乙");
  editor.frame = nullptr;
}

TEST_F(LoadedPlugIn, CanBeLoadedAgain) {
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(kFile));
    EXPECT_NE(acedRegCmds->lookupCmd(L"KOR_GBTC"), nullptr);
    ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(kFile));
  }
}

TEST_F(LoadedPlugIn, ReadsAndWritesNoFileByBeingLoaded) {
  const TempInstall install;
  install.Write("Data/PipeMaterial.idp", "damaged"); // whoever reads it complains
  install.Write("Data/LayerManager/默认方案.idp", "damaged");
  afx::ClearLoggedMessages();
  ASSERT_TRUE(acrxDynamicLinkerPtr()->loadModule(kFile));
  ASSERT_TRUE(acrxDynamicLinkerPtr()->unloadModule(kFile));
  EXPECT_TRUE(afx::LoggedMessages().empty());
  EXPECT_EQ(install.Read("Data/PipeMaterial.idp"), "damaged");
}

} // namespace
