// The one catalogue of ducts, emptied and pointed at an installation folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/NumberText.h"
#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"
#include "tests/support/TempInstall.h"

class DuctFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "Data/PipeMaterial.idp";

  DuctFixture() : catalogue(*CZPDuctMaterialManager::GetInstance()) {
    Empty();
    afx::ClearLoggedMessages();
  }
  ~DuctFixture() override { Empty(); }

  void Empty() {
    pipes::DestroyElements(catalogue.m_arrMaterials);
    pipes::DestroyElements(catalogue.m_arrRectDiameters);
    pipes::DestroyElements(catalogue.m_arrCircleDiameters);
  }
  bool IsEmpty() const {
    return catalogue.m_arrMaterials.IsEmpty() && catalogue.m_arrRectDiameters.IsEmpty() &&
           catalogue.m_arrCircleDiameters.IsEmpty();
  }
  bool Reload() {
    Empty();
    return catalogue.ReadData();
  }
  bool ReadText(const std::string& text) {
    install.Write(kFile, text);
    return Reload();
  }
  CZPDuctMaterial* AddNamed(const CString& name) {
    auto* material = new CZPDuctMaterial;
    material->SetName(name);
    EXPECT_TRUE(catalogue.Add(material));
    return material;
  }
  CZPDuctDiameter* AddRect(double width, double height) {
    auto* size = new CZPDuctDiameter(width, height);
    EXPECT_TRUE(catalogue.AddRectDuctDiameter(size));
    return size;
  }
  CZPDuctDiameter* AddCircle(double diameter) {
    auto* size = new CZPDuctDiameter(diameter, 0);
    EXPECT_TRUE(catalogue.AddCircleDuctDiameter(size));
    return size;
  }

  // "甲 乙", and "500x250 500x320" for sizes.
  CString Names() const {
    CStringArray names;
    catalogue.GetAllDuctMaterialName(names);
    CString joined;
    for (const CString& name : names) joined += (joined.IsEmpty() ? L"" : L" ") + name;
    return joined;
  }
  static CString Sizes(const pipes::OwnedElements<CZPDuctDiameter>& sizes) {
    CString joined;
    for (const CZPDuctDiameter* size : sizes) {
      if (!joined.IsEmpty()) joined += L" ";
      joined += size ? ZP::ftoa(size->m_dWidth, 6, true) + L"x" + ZP::ftoa(size->m_dHeight, 6, true)
                     : CString(L"null");
    }
    return joined;
  }
  CString Rects() const { return Sizes(catalogue.m_arrRectDiameters); }
  CString Circles() const { return Sizes(catalogue.m_arrCircleDiameters); }
  // Names, sizes and wall thicknesses of the whole catalogue.
  CString Everything() const {
    CString text = Names() + L" / " + Rects() + L" / " + Circles();
    for (const CZPDuctMaterial* material : catalogue.m_arrMaterials)
      for (const SZPDuctThickness& row : material->m_arrThickness)
        for (const double number : {row.dbMin, row.dbMax, row.dbThickness})
          text += L" " + ZP::ftoa(number, 9, true);
    return text;
  }

  static bool IsLogged(const wchar_t* text) {
    for (const CString& message : afx::LoggedMessages())
      if (message.Find(text) >= 0) return true;
    return false;
  }
  CString Path() const { return CString::FromUtf8((install.Root() / kFile).string()); }

  TempInstall install;
  CZPDuctMaterialManager& catalogue;
};
