#include "tests/plugin/pipes/ducts/DuctFixture.h"

namespace {

using DuctCatalogue = DuctFixture;

TEST_F(DuctCatalogue, IsOneObject) {
  EXPECT_EQ(CZPDuctMaterialManager::GetInstance(), CZPDuctMaterialManager::GetInstance());
}

TEST_F(DuctCatalogue, HasNoInitialMaterialWhenEmpty) {
  EXPECT_EQ(catalogue.GetInitialDuctMaterial(), nullptr);
  EXPECT_EQ(catalogue.GetDuctMaterial(L""), nullptr);
  CStringArray names;
  names.Add(L"of before");
  catalogue.GetAllDuctMaterialName(names);
  EXPECT_TRUE(names.IsEmpty());
}

TEST_F(DuctCatalogue, FindsMaterialsByExactName) {
  AddNamed(L"镀锌钢板");
  CZPDuctMaterial* pvc = AddNamed(L"PVC板");
  EXPECT_EQ(catalogue.GetDuctMaterial(L"PVC板"), pvc);
  EXPECT_EQ(catalogue.GetDuctMaterial(L"pvc板"), nullptr);
  EXPECT_EQ(catalogue.GetDuctMaterial(L"PVC板 "), nullptr);
  EXPECT_EQ(Names(), L"镀锌钢板 PVC板");
}

TEST_F(DuctCatalogue, FindsTheFirstOfTwoThatWereRenamedAlike) {
  CZPDuctMaterial* first = AddNamed(L"甲");
  AddNamed(L"乙")->SetName(L"甲");
  EXPECT_EQ(catalogue.GetDuctMaterial(L"甲"), first);
}

TEST_F(DuctCatalogue, RefusesAMaterialTwiceAndASecondOneOfTheName) {
  CZPDuctMaterial* first = AddNamed(L"甲");
  EXPECT_FALSE(catalogue.Add(first));
  CZPDuctMaterial second; // stays the caller's
  second.SetName(L"甲");
  EXPECT_FALSE(catalogue.Add(&second));
  EXPECT_FALSE(catalogue.Add(nullptr));
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
}

TEST_F(DuctCatalogue, RefusesASecondUnnamedMaterial) {
  AddNamed(L"");
  CZPDuctMaterial second;
  EXPECT_FALSE(catalogue.Add(&second));
}

TEST_F(DuctCatalogue, RemovesByPointer) {
  CZPDuctMaterial* first = AddNamed(L"甲");
  AddNamed(L"乙");
  CZPDuctMaterial stranger;
  stranger.SetName(L"乙");
  EXPECT_FALSE(catalogue.Remove(&stranger));
  EXPECT_FALSE(catalogue.Remove(nullptr));
  EXPECT_TRUE(catalogue.Remove(first));
  EXPECT_EQ(Names(), L"乙");
}

TEST_F(DuctCatalogue, PassesOverNullElements) {
  catalogue.m_arrMaterials.Add(nullptr);
  CZPDuctMaterial* second = AddNamed(L"甲");
  EXPECT_EQ(catalogue.GetInitialDuctMaterial(), second);
  EXPECT_EQ(catalogue.GetDuctMaterial(L"甲"), second);
  EXPECT_EQ(Names(), L"甲");
  EXPECT_FALSE(catalogue.Remove(nullptr));
}

TEST_F(DuctCatalogue, RaisesAnErrorForAnIndexOutOfRange) {
  EXPECT_THROW(catalogue.m_arrMaterials[0], CInvalidArgException);
  EXPECT_THROW(catalogue.m_arrRectDiameters[0], CInvalidArgException);
}

// In a process of its own, where the catalogue has not been built yet.
TEST(FirstUseOfTheDuctCatalogue, ReadsTheFileOnceAndSavesNothing) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(
      {
        const TempInstall install;
        const char* file = "Data/PipeMaterial.idp";
        install.Write(file,
                      R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":""}]}]}]}])");
        bool ok = CZPDuctMaterialManager::GetInstance()->GetDuctMaterial(L"甲") != nullptr;
        std::filesystem::remove(install.Root() / file);
        ok = ok && CZPDuctMaterialManager::GetInstance()->m_arrMaterials.GetSize() == 1;
        ok = ok && !install.Has(file);
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
