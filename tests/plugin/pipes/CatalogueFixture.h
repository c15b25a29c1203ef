// The one pipe catalogue, emptied and pointed at an installation folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "plugin/base/CIDPEx.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "tests/support/TempInstall.h"

class CatalogueFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "Data/PipeMaterial.idp";

  CatalogueFixture() : catalogue(*CZPPipeMaterialManager::GetInstance()) { Empty(); }
  ~CatalogueFixture() override { Empty(); }

  void Empty() {
    for (CZPPipeMaterial* material : catalogue.m_arrMaterials) delete material;
    catalogue.m_arrMaterials.SetSize(0);
  }
  bool Reload() {
    Empty();
    return catalogue.ReadData();
  }
  CZPPipeMaterial* AddNamed(const CString& name) {
    auto* material = new CZPPipeMaterial;
    material->SetName(name);
    EXPECT_TRUE(catalogue.Add(material));
    return material;
  }
  CString Path() const { return CString::FromUtf8((install.Root() / kFile).string()); }

  TempInstall install;
  CZPPipeMaterialManager& catalogue;
};
