#include "tests/plugin/pipes/CatalogueFixture.h"

namespace {

using PipeCatalogue = CatalogueFixture;

TEST_F(PipeCatalogue, IsOneObject) {
  EXPECT_EQ(CZPPipeMaterialManager::GetInstance(), CZPPipeMaterialManager::GetInstance());
}

TEST_F(PipeCatalogue, HasNoInitialMaterialWhenEmpty) {
  EXPECT_EQ(catalogue.GetInitialPipeMaterial(), nullptr);
  EXPECT_EQ(catalogue.GetPipeMaterial(L""), nullptr);
  CStringArray names;
  names.Add(L"of before");
  catalogue.GetAllPipeMaterialName(names);
  EXPECT_TRUE(names.IsEmpty());
}

TEST_F(PipeCatalogue, FindsMaterialsByExactName) {
  AddNamed(L"镀锌钢管");
  CZPPipeMaterial* pex = AddNamed(L"PE-X管");
  EXPECT_EQ(catalogue.GetPipeMaterial(L"PE-X管"), pex);
  EXPECT_EQ(catalogue.GetPipeMaterial(L"pe-x管"), nullptr);
  CStringArray names;
  catalogue.GetAllPipeMaterialName(names);
  ASSERT_EQ(names.GetSize(), 2);
  EXPECT_EQ(names[0], L"镀锌钢管");
}

TEST_F(PipeCatalogue, RefusesAMaterialTwiceAndASecondOneOfTheName) {
  CZPPipeMaterial* first = AddNamed(L"甲");
  EXPECT_FALSE(catalogue.Add(first));
  CZPPipeMaterial second; // stays the caller's
  second.SetName(L"甲");
  EXPECT_FALSE(catalogue.Add(&second));
  EXPECT_FALSE(catalogue.Add(nullptr));
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
}

TEST_F(PipeCatalogue, RefusesASecondUnnamedMaterial) {
  AddNamed(L"");
  CZPPipeMaterial second;
  EXPECT_FALSE(catalogue.Add(&second));
}

TEST_F(PipeCatalogue, RemovesByPointer) {
  CZPPipeMaterial* first = AddNamed(L"甲");
  AddNamed(L"乙");
  CZPPipeMaterial stranger;
  stranger.SetName(L"乙");
  EXPECT_FALSE(catalogue.Remove(&stranger));
  EXPECT_FALSE(catalogue.Remove(nullptr));
  EXPECT_TRUE(catalogue.Remove(first));
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  EXPECT_EQ(catalogue.GetInitialPipeMaterial()->GetName(), L"乙");
}

TEST_F(PipeCatalogue, PassesOverNullElements) {
  catalogue.m_arrMaterials.Add(nullptr);
  CZPPipeMaterial* second = AddNamed(L"甲");
  EXPECT_EQ(catalogue.GetInitialPipeMaterial(), second);
  EXPECT_EQ(catalogue.GetPipeMaterial(L"甲"), second);
}

TEST_F(PipeCatalogue, RaisesAnErrorForAnIndexOutOfRange) {
  EXPECT_THROW(catalogue.m_arrMaterials[0], CInvalidArgException);
}

// In a process of its own, where the catalogue has not been built yet.
TEST(FirstUseOfThePipeCatalogue, ReadsTheFileOnceAndSavesNothing) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        CIDPEx root;
        root.SetSubValue(L"Version", L"1.0");
        root.SetSubValue(L"管材管径方案", L"");
        CIDPEx* section = root.GetSubItem(L"管材管径方案");
        section->SetSubValue(L"0", 0);
        section->GetSubItem(L"0")->SetSubValue(L"甲", L"");
        section->GetSubItem(L"0")->GetSubItem(L"甲")->SetSubValue(L"管径数据", L"");
        const CString path = CString::FromUtf8((install.Root() / "Data/PipeMaterial.idp").string());
        bool ok = root.Save(path) != 0;
        ok = ok && CZPPipeMaterialManager::GetInstance()->m_arrMaterials.GetSize() == 1;
        std::filesystem::remove(install.Root() / "Data/PipeMaterial.idp");
        ok = ok && CZPPipeMaterialManager::GetInstance()->m_arrMaterials.GetSize() == 1;
        ok = ok && !install.Has("Data/PipeMaterial.idp");
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
