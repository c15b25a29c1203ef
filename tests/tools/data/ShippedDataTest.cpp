// What the installation is shipped with, read as the plug-in reads it.
#include <gtest/gtest.h>

#include <set>

#include "ZpPaths.h"
#include "host/afx/MessageLog.h"
#include "host/db/AcDb.h"
#include "plugin/base/Folders.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/LayerService.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tests/support/TempInstall.h"
#include "tests/support/WorkingDrawing.h"

namespace {

class ShippedData : public testing::Test {
 protected:
  ShippedData() {
    std::filesystem::copy(std::string(ZP_SOURCE_DIR) + "/data", install.Root(),
                          std::filesystem::copy_options::recursive);
    afx::ClearLoggedMessages();
  }
  TempInstall install;
};

class ShippedPipes : public ShippedData {
 protected:
  ShippedPipes() : catalogue(*CZPPipeMaterialManager::GetInstance()) {
    while (CZPPipeMaterial* material = catalogue.GetInitialPipeMaterial()) catalogue.Remove(material);
    EXPECT_TRUE(catalogue.ReadData());
  }
  CZPPipeMaterialManager& catalogue;
};

TEST_F(ShippedPipes, AreThirteenMaterialsBeginningWithGalvanisedSteel) {
  CStringArray names;
  catalogue.GetAllPipeMaterialName(names);
  ASSERT_EQ(names.GetSize(), 13);
  EXPECT_EQ(names[0], L"镀锌钢管(普通)");
}

TEST_F(ShippedPipes, AreLabelledByNominalDiameterWhereMadeOfMetalAndByOuterDiameterWhereOfPlastic) {
  const auto label = [&](const wchar_t* material, const wchar_t* pipe) {
    const CZPPipeMaterial* found = catalogue.GetPipeMaterial(material);
    return found ? found->GetLabelText(pipe) : CString(L"(none)");
  };
  EXPECT_EQ(label(L"镀锌钢管(普通)", L"DN25"), L"DN25");
  EXPECT_EQ(label(L"无缝钢管", L"DN250"), L"DN250");
  EXPECT_EQ(label(L"紫铜管(B型)", L"DN15"), L"DN15");
  EXPECT_EQ(label(L"PP-R管(S4)", L"De25"), L"De25×2.8");
  EXPECT_EQ(label(L"铝塑复合管(搭接焊)", L"De20"), L"De20×2.15");
  EXPECT_EQ(label(L"UPVC排水管(冷凝水)", L"De32"), L"De32");
}

TEST_F(ShippedPipes, HaveGrowingDiametersAndWallsThatAgree) {
  for (const CZPPipeMaterial* material : catalogue.m_arrMaterials) {
    EXPECT_GT(material->m_dRoughness, 0);
    EXPECT_GT(material->m_arrDNData.GetSize(), 4) << material->GetName().ToUtf8();
    double before = 0;
    for (const SZPPipeDNData& row : material->m_arrDNData) {
      EXPECT_GT(row.dbNominal, before) << material->GetName().ToUtf8();
      EXPECT_NEAR(row.dbInner + 2 * row.dbThickness, row.dbOuter, 1e-9);
      EXPECT_GT(row.dbInner, 0);
      before = row.dbNominal;
    }
  }
}

class ShippedLayers : public ShippedData {
 protected:
  ShippedLayers() : scheme(*CZPManagerLayer::GetInstance()) {
    scheme.RemoveAll();
    EXPECT_TRUE(scheme.ReadData(L"默认方案"));
    for (const CZPSystemLayer* category : scheme.Categories())
      for (const CZPGroupLayer* group : category->Groups())
        for (CZPLayer* layer : group->Layers()) layers.push_back(layer);
  }
  ~ShippedLayers() override {
    scheme.RemoveAll();
    AcDbDatabase::setSupportFolders({});
  }
  CZPManagerLayer& scheme;
  std::vector<CZPLayer*> layers;
};

TEST_F(ShippedLayers, AreInFiveCategories) {
  CString names;
  for (const CZPSystemLayer* category : scheme.Categories()) names += category->GetName() + L" ";
  EXPECT_EQ(names, L"公用 空调水路 采暖 负荷计算 空调风路 ");
  EXPECT_EQ(layers.size(), 107u);
}

TEST_F(ShippedLayers, HaveIdentifiersAndNamesOfTheirOwn) {
  std::set<CString> identifiers;
  std::set<CString> names;
  for (const CZPLayer* layer : layers) {
    EXPECT_TRUE(identifiers.insert(layer->GetKorLayer()).second) << layer->GetKorLayer().ToUtf8();
    EXPECT_TRUE(names.insert(layer->GetUserLayer()).second) << layer->GetUserLayer().ToUtf8();
  }
}

TEST_F(ShippedLayers, OfPipesHaveACompanionForTheirBends) {
  int pipes = 0;
  for (const CZPLayer* layer : layers) {
    if (layer->GetParent()->GetName() != L"管线") continue;
    ++pipes;
    EXPECT_TRUE(scheme.IsExist(layer->GetKorLayer() + L"扣弯")) << layer->GetKorLayer().ToUtf8();
  }
  EXPECT_GT(pipes, 20);
}

TEST_F(ShippedLayers, CannotBeDeletedInTheLayerManager) {
  for (const CZPLayer* layer : layers) EXPECT_FALSE(layer->IsAllowModify());
}

TEST_F(ShippedLayers, BecomeLayersOfADrawingJustAsTheyAreDefined) {
  AcDbDatabase::setSupportFolders({CString::FromUtf8(install.Root().string())});
  WorkingDrawing drawing;
  for (const CZPLayer* layer : layers) {
    const CString name = ZP::GetUserLayer(layer->GetKorLayer());
    EXPECT_EQ(name, layer->GetUserLayer());
    const auto* record = AcDbLayerTableRecord::cast(drawing.Layer(name).object());
    ASSERT_NE(record, nullptr) << name.ToUtf8();
    EXPECT_EQ(record->name(), name);
    EXPECT_EQ(record->color().colorIndex(), layer->GetColorIndex()) << name.ToUtf8();
    EXPECT_EQ(record->lineWeight(), static_cast<int>(layer->GetLineWeight() * 100 + 0.5)) << name.ToUtf8();
    const auto* linetype = AcDbLinetypeTableRecord::cast(record->linetypeObjectId().object());
    ASSERT_NE(linetype, nullptr) << name.ToUtf8();
    EXPECT_EQ(linetype->name().CompareNoCase(layer->GetLineType()), 0) << name.ToUtf8();
    CString korLayer;
    EXPECT_TRUE(ZP::GetKOrLayer(name, korLayer));
    EXPECT_EQ(korLayer, layer->GetKorLayer());
  }
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(ShippedData, IsOnePlaceByWhicheverPath) {
  EXPECT_EQ(afx::NativePath(ZP::GetSystemPath() + L"Data\\LayerManager\\x"),
            afx::NativePath(ZP::GetDataPath() + L"LayerManager\\x"));
  EXPECT_TRUE(std::filesystem::exists(afx::NativePath(ZP::GetDataPath() + L"LayerManager\\默认方案.idp")));
}

TEST_F(ShippedData, HasEveryLinetypeInThreeSizes) {
  AcDbDatabase::setSupportFolders({CString::FromUtf8(install.Root().string())});
  AcDbDatabase drawing;
  ASSERT_EQ(drawing.loadLineTypeFile(L"*", L"acad.lin"), Acad::eOk);
  EXPECT_TRUE(afx::LoggedMessages().empty());
  const AcDbObjectPointer<AcDbLinetypeTable> table(drawing.linetypeTableId(), AcDb::kForRead);
  const auto linetype = [&](const CString& name) {
    AcDbObjectId id;
    table->getAt(name, id);
    return AcDbLinetypeTableRecord::cast(id.object());
  };
  for (const wchar_t* base :
       {L"BORDER", L"CENTER", L"DASHDOT", L"DASHED", L"DIVIDE", L"DOT", L"HIDDEN", L"PHANTOM"}) {
    const auto* whole = linetype(base);
    const auto* half = linetype(CString(base) + L"2");
    const auto* twice = linetype(CString(base) + L"X2");
    ASSERT_TRUE(whole && half && twice) << CString(base).ToUtf8();
    ASSERT_EQ(whole->dashes().size(), half->dashes().size());
    ASSERT_EQ(whole->dashes().size(), twice->dashes().size());
    for (std::size_t i = 0; i < whole->dashes().size(); ++i) {
      EXPECT_DOUBLE_EQ(half->dashes()[i].length, whole->dashes()[i].length / 2);
      EXPECT_DOUBLE_EQ(twice->dashes()[i].length, whole->dashes()[i].length * 2);
    }
  }
  AcDbDatabase::setSupportFolders({});
}

} // namespace
