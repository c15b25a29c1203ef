// The layer scheme with one group of two layers, 供水 and 回水, saved as the default scheme; emptied again at
// the end.
#pragma once

#include <gtest/gtest.h>

#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/SchemeFiles.h"

class SmallScheme {
 public:
  SmallScheme() {
    scheme.RemoveAll();
    scheme.SetPlanName(layers::kDefaultScheme);
    auto* category = new CZPSystemLayer;
    category->SetName(L"采暖");
    scheme.Add(category);
    group->SetName(L"管线");
    category->Add(group);
    for (const wchar_t* name : {L"供水", L"回水"}) Add(name, CString(L"暖通-") + name);
    EXPECT_TRUE(scheme.SaveData());
  }
  ~SmallScheme() { scheme.RemoveAll(); }
  SmallScheme(const SmallScheme&) = delete;
  SmallScheme& operator=(const SmallScheme&) = delete;

  // To the group; not saved.
  void Add(const CString& identifier, const CString& name) {
    auto* layer = new CZPLayer;
    layer->SetKorLayer(identifier);
    layer->SetUserLayer(name);
    group->Add(layer);
  }

  CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();

 private:
  CZPGroupLayer* group = new CZPGroupLayer; // of the scheme, until that is read again
};
