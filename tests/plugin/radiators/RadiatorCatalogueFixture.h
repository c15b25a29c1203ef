// The one catalogue of radiators, emptied and pointed at an installation folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "plugin/base/CIDPEx.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "tests/support/TempInstall.h"

class RadiatorCatalogueFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "HeatingData/Srq.idp";

  RadiatorCatalogueFixture() : catalogue(*CZPRadiatorManager::GetInstance()) { Empty(); }
  ~RadiatorCatalogueFixture() override { Empty(); }

  void Empty() { catalogue.RemoveAll(); }
  bool Read() { return catalogue.ReadData(); }
  bool Reload() {
    Empty();
    return Read();
  }
  bool ReadText(const std::string& text) {
    install.Write(kFile, text);
    return Reload();
  }
  CZPRadiatorType* AddType(const CString& name) {
    EXPECT_TRUE(catalogue.Add(name));
    return catalogue.GetRadiatorType(name);
  }
  static CZPRadiator* AddRadiator(CZPRadiatorType* type, const CString& name) {
    auto* radiator = new CZPRadiator;
    radiator->SetName(name);
    EXPECT_TRUE(type->Add(radiator));
    return radiator;
  }
  // The names in their order: "甲(1 2) 乙()".
  CString Names() const {
    CString names;
    for (const CZPRadiatorType* type : catalogue.m_arrTypes) {
      if (!names.IsEmpty()) names += L" ";
      CString inside;
      for (const CZPRadiator* radiator : type->m_arrRadiators)
        inside += (inside.IsEmpty() ? L"" : L" ") + radiator->GetName();
      names += type->GetName() + L"(" + inside + L")";
    }
    return names;
  }
  CString Path() const { return CString::FromUtf8((install.Root() / kFile).string()); }

  TempInstall install;
  CZPRadiatorManager& catalogue;
};
