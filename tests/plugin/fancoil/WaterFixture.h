// A water-system database in an installation of the test's own: three pipe systems, three duct systems, no
// blocks and no connections, unless the test puts some in before Read.
#pragma once

#include <gtest/gtest.h>

#include "plugin/base/NumberText.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/WaterDatabase.h"
#include "tests/support/TempInstall.h"

class WaterFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "Data/KTSLDatabase.xml";

  WaterFixture() : root(nullptr, nullptr) {
    for (const wchar_t* part : {L"PipeSystem", L"DuctSystem", L"Block", L"PipeConnection", L"DuctConnection"})
      root.FindOrAddDict(part);
    AddPipeSystem(1, L"空调冷热水供水", L"供水干管", L"供水立管");
    AddPipeSystem(2, L"空调冷热水回水", L"回水干管", L"回水立管");
    AddPipeSystem(7, L"空调冷凝水", L"冷凝水干管", L"冷凝水立管");
    AddDuctSystem(1, L"送风管", L"送风");
    AddDuctSystem(2, L"回风管", L"回风");
    AddDuctSystem(5, L"新风管", L"新风");
  }

  void AddPipeSystem(int id, const wchar_t* name, const wchar_t* mainLayer, const wchar_t* riserLayer) {
    VkDtDictionary* item = root.FindOrAddDict(L"PipeSystem")->FindOrAddDict(L"System" + ZP::itoa(id));
    item->SetAttributeIntValue(L"name", id);
    item->SetAttributeValue(L"SysName", name);
    item->SetAttributeValue(L"MainPipeLayer", mainLayer);
    item->SetAttributeValue(L"RiserLayer", riserLayer);
  }
  void AddDuctSystem(int id, const wchar_t* name, const wchar_t* layer) {
    VkDtDictionary* item = root.FindOrAddDict(L"DuctSystem")->FindOrAddDict(L"System" + ZP::itoa(id));
    item->SetAttributeIntValue(L"name", id);
    item->SetAttributeValue(L"SysName", name);
    item->SetAttributeValue(L"Layer", layer);
  }
  void AddBlock(int id, const wchar_t* name, double x = 0.0, double y = 0.0) {
    const CString itemName = L"Block" + ZP::itoa(id);
    VkDtDictionary* item = root.FindOrAddDict(L"Block")->FindOrAddDict(itemName);
    item->SetAttributeValue(L"name", itemName);
    item->SetAttributeValue(L"BlockName", name);
    item->SetAttributeDoubleValue(L"Labelx", x);
    item->SetAttributeDoubleValue(L"Labely", y);
    item->SetAttributeIntValue(L"id", id);
  }
  // The root without one of its parts.
  void Drop(const wchar_t* part) {
    for (root.MoveToFirst(); !root.IsOut(); root.MoveToNext())
      if (root.GetCurData() == root.FindDict(part)) {
        root.DelCur();
        return;
      }
  }

  // Writes the database and reads it as callers do.
  void Read() {
    ASSERT_TRUE(root.SaveToXML(fancoil::WaterDatabasePath()));
    ASSERT_TRUE(operation.Initial());
  }

  // The file as another reader sees it: what of the part's items the visitor tells.
  template <typename Tell> CString InFile(const wchar_t* part, Tell tell) const {
    VkDtDictionary read(nullptr, nullptr);
    CString told;
    if (!read.ReadFromXML(fancoil::WaterDatabasePath())) return L"unreadable";
    VkDtDictionary* dictionary = read.FindDict(part);
    if (!dictionary) return L"missing";
    fancoil::WalkItems(*dictionary, [&](const VkDtDictItem& item) {
      told += tell(item) + L" ";
      return true;
    });
    return told;
  }

  TempInstall install;
  VkDtDictionary root;
  CKTDatabaseOperation operation;
};

inline CString Joined(const CStringArray& texts) {
  CString joined;
  for (const CString& text : texts) joined += text + L" ";
  return joined;
}
