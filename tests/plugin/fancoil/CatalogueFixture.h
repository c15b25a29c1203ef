// The one fan-coil catalogue, emptied and pointed at an installation folder of the test's own, and its file
// as another program might leave it.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "host/ed/EdSession.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/EquipmentFields.h"
#include "plugin/fancoil/OwnedEntries.h"
#include "tests/support/ScriptedFrontEnd.h"
#include "tests/support/TempInstall.h"

class CatalogueFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "Data/FCUData.idp";

  CatalogueFixture() : catalogue(*CFCUManager::GetInstance()) {
    Empty();
    std::filesystem::remove(install.Root() / kFile); // where the first test has made the catalogue
    EdSession::instance().setFrontEnd(&user);
  }
  ~CatalogueFixture() override {
    EdSession::instance().setFrontEnd(nullptr);
    Empty();
  }

  void Empty() { fancoil::DeleteEntries(catalogue.m_arrFactories); }
  int Reload() {
    Empty();
    return catalogue.ReadData();
  }
  CFCUFactory* AddFactory(const wchar_t* name) {
    auto* factory = new CFCUFactory;
    factory->SetName(name);
    EXPECT_EQ(catalogue.Add(factory), 1);
    return factory;
  }
  static std::unique_ptr<CFCUEquipment> Model(const CString& name) {
    auto equipment = std::make_unique<CFCUEquipment>();
    equipment->SetName(name);
    return equipment;
  }
  static CFCUEquipment* AddModel(CFCUFactory* factory, const CString& name) {
    CFCUEquipment* equipment = Model(name).release();
    EXPECT_EQ(factory->Add(equipment), 1);
    return equipment;
  }
  CString Path() const { return CString::FromUtf8((install.Root() / kFile).string()); }

  // A maker in a file, with models that have nothing but their names.
  static CIDPEx& PutFactory(CIDPEx& root, int index, const CString& name,
                            std::initializer_list<const wchar_t*> models) {
    CIDPEx& factory = PutItem(root, L"Factory" + ZP::itoa(index));
    factory.SetSubValue(L"Name", name);
    factory.SetSubValue(L"Count", static_cast<int>(models.size()));
    int j = 0;
    for (const wchar_t* model : models)
      PutItem(factory, L"Equipment" + ZP::itoa(j++)).SetSubValue(L"设备型号", model);
    return factory;
  }
  static CIDPEx& PutItem(CIDPEx& list, const CString& key) {
    list.SetSubValue(key, 0);
    return *list.GetSubItem(key);
  }
  // The root of a file that says it has so many makers.
  static void Begin(CIDPEx& root, int count, const wchar_t* mark = L"Version:1.0") {
    root.SetValue(mark);
    root.SetSubValue(L"Count", count);
  }
  // A file that takes the place of another, not its content: file systems flush the latter to the disk.
  void PutText(const std::string& text) const {
    std::filesystem::remove(install.Root() / kFile);
    install.Write(kFile, text);
  }
  void SaveFile(CIDPEx& root) const { ASSERT_TRUE(root.Save(Path())); }

  // The catalogue as a text: 甲{A B }乙{}
  CString Outline() const {
    CString outline;
    for (const CFCUFactory* factory : catalogue.m_arrFactories) {
      outline += factory ? factory->GetName() + L"{" : CString(L"null{");
      if (factory)
        for (const CFCUEquipment* equipment : factory->m_arrEquipments)
          outline += (equipment ? equipment->GetName() : CString(L"null")) + L" ";
      outline += L"}";
    }
    return outline;
  }
  // The same of the file, as a fresh reader sees it.
  CString FileOutline() { return Reload() ? Outline() : CString(L"unreadable"); }

  TempInstall install;
  ScriptedFrontEnd user;
  CFCUManager& catalogue;
};

// A record in which every field has a value of its own. The seed tells two such records apart.
inline SKTFCUEquipmentData FullRecord(const CString& model, int seed = 0) {
  SKTFCUEquipmentData data;
  double number = 0.1 + 0.2 + seed;
  for (const EquipmentField& field : kEquipmentFields) {
    number += 1;
    if (const auto* text = std::get_if<CString SKTFCUEquipmentData::*>(&field.member))
      data.*(*text) = CString(field.key) + L"的值" + ZP::itoa(seed);
    if (const auto* integer = std::get_if<int SKTFCUEquipmentData::*>(&field.member))
      data.*(*integer) = static_cast<int>(number);
    if (const auto* real = std::get_if<double SKTFCUEquipmentData::*>(&field.member)) data.*(*real) = number;
  }
  data.szMode = model;
  return data;
}

// All stored fields; the maker isn't one.
inline void ExpectSameRecord(const SKTFCUEquipmentData& actual, const SKTFCUEquipmentData& expected) {
  for (const EquipmentField& field : kEquipmentFields)
    std::visit(
        [&](auto member) { EXPECT_EQ(actual.*member, expected.*member) << CString(field.key).ToUtf8(); },
        field.member);
}

// Names that a file, a format or a shell could stumble over.
inline const CString kAwkwardNames[] = {
    L"",
    L" ",
    L"FP-34/2#(左)，“引号”",
    L"a\"b\\c'd",
    L"a\tb\r\nc\x01\x7f",
    L"<&>%s%d%n%%",
    L"\U0001F600\U00020BB7",
    L"Count",
    L"Factory0",
    CString(std::wstring(L"nul\0nul", 7)),
    CString(std::wstring(5000, L'长')),
};
