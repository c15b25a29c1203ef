#include "plugin/frame/CommandTable.h"

#include <gmock/gmock.h>

#include "plugin/fancoil/OldCatalogueImport.h"
#include "plugin/layers/LayerService.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "tests/support/ScriptedEditor.h"
#include "tests/support/TempInstall.h"
#include "tests/support/UiFrontEndScript.h"

namespace {

using testing::ElementsAre;

std::string Utf8(const wchar_t* text) {
  return CString(text).ToUtf8();
}

TEST(CommandTable, HasTheCommandsInTheirOrder) {
  std::vector<std::string> names;
  for (const VkCmdTable& row : CommandTable()) names.push_back(Utf8(row.command));
  EXPECT_THAT(names,
              ElementsAre("KOR_GJGLQ", "KOR_LSGLQ", "KOR_FGGJGLQ", "KOR_XTSZ", "KOR_TCGLQ", "KOR_SZDQTC",
                          "KOR_GBTC", "KOR_GBQT", "KOR_DJTC", "KOR_DJQT", "KOR_SDTC", "KOR_SDQT", "KOR_TCHF",
                          "KOR_DKQBTC", "KOR_JDQBTC", "KOR_JSQBTC", "KOR_CADTCFZ", "KOR_CADTCKZ",
                          "KOR_FJPGGLQ", "KOR_FJPG_OLDTONEW", "KOR_SRQ", "KOR_SRQJS"));
}

TEST(CommandTable, LetsEveryCommandTakeWhatWasSelectedBefore) {
  for (const VkCmdTable& row : CommandTable()) EXPECT_EQ(row.flags, 2) << Utf8(row.command);
}

TEST(CommandTable, ForwardsTheLayerCommandsAsTheyAre) {
  const auto handlerOf = [](std::wstring_view command) -> void (*)() {
    for (const VkCmdTable& row : CommandTable())
      if (row.command == command) return row.handler;
    return nullptr;
  };
  EXPECT_EQ(handlerOf(L"KOR_GBTC"), &ZP::CloseSelectedLayer);
  EXPECT_EQ(handlerOf(L"KOR_GBQT"), &ZP::CloseOtherLayers);
  EXPECT_EQ(handlerOf(L"KOR_DJTC"), &ZP::FrozenSelectedLayer);
  EXPECT_EQ(handlerOf(L"KOR_DJQT"), &ZP::FrozenOtherLayers);
  EXPECT_EQ(handlerOf(L"KOR_SDTC"), &ZP::LockedSelectedLayer);
  EXPECT_EQ(handlerOf(L"KOR_SDQT"), &ZP::LockedOtherLayers);
  EXPECT_EQ(handlerOf(L"KOR_TCHF"), &ZP::ResumeLayers);
  EXPECT_EQ(handlerOf(L"KOR_DKQBTC"), &ZP::OpenAllLayers);
  EXPECT_EQ(handlerOf(L"KOR_JDQBTC"), &ZP::UnFrozenAllLayers);
  EXPECT_EQ(handlerOf(L"KOR_JSQBTC"), &ZP::UnLockedAllLayers);
}

TEST(CommandTable, ImportsOldFanCoilsWithoutADialog) {
  EXPECT_EQ(CommandTable()[19].handler, &fancoil::ImportOldCatalogue);
}

// Runs the command of a row, and looks at the dialog that it opens.
void ExpectOpensWithoutParent(std::size_t row, const CString& caption) {
  ScriptedEditor editor;
  UiFrontEndScript frontEnd;
  std::size_t depth = 0;
  frontEnd.runs = {[&](CDialog& dialog) {
    EXPECT_EQ(dialog.GetCaption().Left(caption.GetLength()), caption);
    EXPECT_EQ(dialog.GetParent(), nullptr);
    depth = acDocManagerPtr()->resourceDepth();
  }};
  CommandTable()[row].handler();
  EXPECT_EQ(depth, 1u);
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u);
}

TEST(CommandTable, OpensTheLayerManagerWithTheResourcesAndNoParent) {
  const TempInstall install;
  ExpectOpensWithoutParent(4, L"图层管理器");
}

TEST(CommandTable, OpensTheRadiatorCalculationWithTheResourcesAndNoParent) {
  const TempInstall install;
  auto& catalogue = *CZPRadiatorManager::GetInstance();
  catalogue.Add(L"铸铁");
  catalogue.m_arrTypes[0]->Add(new CZPRadiator);
  ExpectOpensWithoutParent(21, L"散热器片数计算");
  catalogue.Remove(catalogue.m_arrTypes[0]);
}

TEST(CommandTable, OpensDialogsWithoutAWordWhereNobodyCanSeeThem) {
  const TempInstall install; // dialogs save as they go, also those that nobody can see
  ScriptedEditor editor;
  for (const VkCmdTable& row : CommandTable()) {
    if (std::wstring_view(row.command) == L"KOR_SZDQTC") break;
    row.handler();
  }
  for (const VkCmdTable& row : CommandTable().subspan(16)) row.handler();
  EXPECT_EQ(editor.printed, L"");
  EXPECT_EQ(acDocManagerPtr()->resourceDepth(), 0u) << "each takes its resources away again";
}

} // namespace
