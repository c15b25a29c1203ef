// The one layer scheme, emptied and pointed at an installation folder of the test's own.
#pragma once

#include <gtest/gtest.h>

#include "plugin/base/CIDPEx.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "tests/support/TempInstall.h"

class SchemeFixture : public testing::Test {
 protected:
  SchemeFixture() : scheme(*CZPManagerLayer::GetInstance()) { Clear(); }
  ~SchemeFixture() override { Clear(); }

  void Clear() {
    scheme.RemoveAll();
    scheme.SetPlanName(L"默认方案");
  }
  CZPSystemLayer* AddCategory(const wchar_t* name) {
    auto* category = new CZPSystemLayer;
    category->SetName(name);
    EXPECT_TRUE(scheme.Add(category));
    return category;
  }
  CZPGroupLayer* AddGroup(CZPSystemLayer* category, const wchar_t* name) {
    auto* group = new CZPGroupLayer;
    group->SetName(name);
    EXPECT_TRUE(category->Add(group));
    return group;
  }
  CZPLayer* AddLayer(CZPGroupLayer* group, const wchar_t* korLayer, const wchar_t* userLayer) {
    auto* layer = new CZPLayer;
    layer->SetKorLayer(korLayer);
    layer->SetUserLayer(userLayer);
    EXPECT_TRUE(group->Add(layer));
    return layer;
  }
  // A layer definition in the first group, which is made if need be.
  CZPLayer* Define(const wchar_t* korLayer, const wchar_t* userLayer) {
    CZPSystemLayer* category = scheme.Categories().IsEmpty() ? AddCategory(L"分类") : scheme.Categories()[0];
    CZPGroupLayer* group = category->Groups().IsEmpty() ? AddGroup(category, L"分组") : category->Groups()[0];
    return AddLayer(group, korLayer, userLayer);
  }
  CString PathOf(const wchar_t* plan) const {
    return CString::FromUtf8(install.Root().string()) + L"\\Data\\LayerManager\\" + plan + L".idp";
  }

  TempInstall install;
  CZPManagerLayer& scheme;
};
