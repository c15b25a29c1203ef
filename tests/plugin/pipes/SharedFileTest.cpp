// The two catalogues that share PipeMaterial.idp, side by side.
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"

namespace {

class SharedFile : public DuctFixture {
 protected:
  SharedFile() : pipeCatalogue(*CZPPipeMaterialManager::GetInstance()) {
    pipes::DestroyElements(pipeCatalogue.m_arrMaterials);
  }
  ~SharedFile() override { pipes::DestroyElements(pipeCatalogue.m_arrMaterials); }
  void AddPipe(const wchar_t* name) {
    auto* material = new CZPPipeMaterial;
    material->SetName(name);
    EXPECT_TRUE(pipeCatalogue.Add(material));
  }
  CString RootKeys() const {
    CIDPEx root;
    EXPECT_TRUE(root.Open(Path()));
    CString keys;
    for (const CString key : root.SubKeyNames) keys += key + L"|";
    return keys;
  }
  CZPPipeMaterialManager& pipeCatalogue;
};

TEST_F(SharedFile, KeepsBothHalvesWhicheverIsSavedFirst) {
  AddPipe(L"钢管");
  AddNamed(L"钢板");
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(RootKeys(), L"Version|风管管材方案|风管管径方案|");
  ASSERT_TRUE(pipeCatalogue.SaveData());
  EXPECT_EQ(RootKeys(), L"Version|风管管材方案|风管管径方案|管材管径方案|");
  std::filesystem::remove(install.Root() / kFile);
  ASSERT_TRUE(pipeCatalogue.SaveData());
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(RootKeys(), L"Version|管材管径方案|风管管材方案|风管管径方案|");
}

TEST_F(SharedFile, KeepsWhatEachWroteSinceTheOtherReadIt) {
  AddPipe(L"钢管");
  AddNamed(L"钢板");
  ASSERT_TRUE(pipeCatalogue.SaveData());
  ASSERT_TRUE(catalogue.SaveData());
  AddPipe(L"铜管"); // each goes on without having seen the other's change
  ASSERT_TRUE(pipeCatalogue.SaveData());
  AddNamed(L"铝板");
  AddRect(500, 250);
  ASSERT_TRUE(catalogue.SaveData());
  pipes::DestroyElements(pipeCatalogue.m_arrMaterials);
  EXPECT_TRUE(pipeCatalogue.ReadData());
  EXPECT_NE(pipeCatalogue.GetPipeMaterial(L"铜管"), nullptr);
  EXPECT_EQ(pipeCatalogue.m_arrMaterials.GetSize(), 2);
  EXPECT_TRUE(Reload());
  EXPECT_EQ(Names(), L"钢板 铝板");
  EXPECT_EQ(Rects(), L"500x250");
}

TEST_F(SharedFile, IsTheSameByteForByteAfterEachHalfWasReadAndSavedUnchanged) {
  AddPipe(L"钢管");
  AddNamed(L"钢板");
  AddRect(500, 250);
  AddCircle(100);
  ASSERT_TRUE(pipeCatalogue.SaveData());
  ASSERT_TRUE(catalogue.SaveData());
  const std::string before = install.Read(kFile);
  ASSERT_TRUE(Reload());
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), before);
  ASSERT_TRUE(pipeCatalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), before);
}

} // namespace
