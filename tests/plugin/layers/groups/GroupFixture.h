// The one list of layer groups, emptied for a test and behind it.
#pragma once

#include <gtest/gtest.h>

#include "host/afx/MessageLog.h"
#include "plugin/layers/OwnedNodes.h"
#include "plugin/layers/groups/CCADGroupLayer.h"
#include "plugin/layers/groups/CCADManagerLayer.h"
#include "tests/support/TempInstall.h"

// Beside any fixture that has an installation folder of its own.
class TestGroups {
 protected:
  TestGroups() : manager(*CCADManagerLayer::GetInstance()) { Empty(); }
  ~TestGroups() { Empty(); }

  void Empty() { layers::DestroyNodes(manager.Groups()); }
  int Reload() {
    Empty();
    return manager.ReadData();
  }
  CCADGroupLayer* Group(const CString& name, std::initializer_list<const wchar_t*> layers = {}) {
    auto* group = new CCADGroupLayer;
    group->SetName(name);
    for (const wchar_t* layer : layers) group->Layers.Add(layer);
    EXPECT_EQ(manager.Add(group), 1);
    return group;
  }
  // "甲(a,b) 乙()"
  CString Everything() const {
    CString text;
    for (const CCADGroupLayer* group : manager.Groups()) {
      text += (text.IsEmpty() ? L"" : L" ") + group->GetName() + L"(";
      for (int i = 0; i < group->Layers.GetSize(); ++i) text += (i == 0 ? L"" : L",") + group->Layers[i];
      text += L")";
    }
    return text;
  }

  static constexpr const char* kFile = "Data/CadLayerGroup.idp";
  CCADManagerLayer& manager;
};

class GroupFixture : public testing::Test, protected TestGroups {
 protected:
  GroupFixture() { afx::ClearLoggedMessages(); }

  int ReadText(const std::string& text) {
    install.Write(kFile, text);
    return Reload();
  }
  bool IsRescued() const { return install.Has(std::string(kFile) + ".rescued-1"); }

  TempInstall install;
};
