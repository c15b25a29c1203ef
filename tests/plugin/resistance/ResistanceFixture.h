// An installation of the test's own, VacCal.xml in it as the test makes it, and the program's one store as if
// it had been read from there.
#pragma once

#include <gtest/gtest.h>

#include "plugin/base/NumberText.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/resistance/FittingColumns.h"
#include "plugin/resistance/ResistanceFile.h"
#include "plugin/resistance/TeeFlows.h"
#include "tests/plugin/resistance/FreshStore.h"
#include "tests/support/TempInstall.h"

class ResistanceFixture : public testing::Test {
 protected:
  static constexpr const char* kFile = "VacCal.xml";

  ResistanceFixture() : store(*CZPLocalResistanceMng::GetInstance()), root(nullptr, nullptr) { Reload(); }

  // As if the program were started again. The open status tells whether the file was read.
  int Reload() {
    store = *FreshStore();
    return store.GetOpenStatus();
  }

  // What the file is going to hold.
  VkDtDictionary& Part(const wchar_t* name) { return *root.FindOrAddDict(name); }
  VkDtDictionary& PutFitting(const CString& name, const wchar_t* coefficient = L"1") {
    VkDtDictionary& fittings = Part(resistance::kFittingPart);
    VkDtDictionary& item = *fittings.FindOrAddDict(ZP::itoa(fittings.GetLength()));
    item.SetAttributeValue(resistance::kName, name);
    for (const auto& column : resistance::kFittingColumns)
      item.SetAttributeValue(column.attribute, coefficient);
    return item;
  }
  void PutFlow(const wchar_t* key, const wchar_t* coefficient) {
    VkDtDictionary& flows = Part(resistance::kFlowPart);
    VkDtDictionary& item = *flows.FindOrAddDict(L"Flow" + ZP::itoa(flows.GetLength()));
    item.SetAttributeValue(resistance::kFlowKey, key);
    item.SetAttributeValue(resistance::kCoefficient, coefficient);
  }
  void PutPicture(const wchar_t* form, const wchar_t* file) {
    VkDtDictionary& pictures = Part(resistance::kPicturePart);
    VkDtDictionary& item = *pictures.FindOrAddDict(L"Picture" + ZP::itoa(pictures.GetLength()));
    item.SetAttributeValue(resistance::kName, form);
    item.SetAttributeValue(resistance::kPicture, file);
  }
  // All flows with coefficients that differ: 0.25, 0.5 and so on.
  void PutAllFlows() {
    double coefficient = 0;
    for (const auto& flow : resistance::kTeeFlows) PutFlow(flow.key, ZP::ftoa(coefficient += 0.25, 2, true));
  }
  // Writes the file, which takes the place of an older one, and reads it as the program's start does.
  void Start() {
    std::filesystem::remove(install.Root() / kFile);
    ASSERT_TRUE(root.SaveToXML(resistance::FilePath()));
    ASSERT_EQ(Reload(), 0);
  }

  // A fitting with the same coefficient in each column.
  static CZPPipePartsCoe Fitting(const wchar_t* name, double coefficient = 1) {
    CZPPipePartsCoe fitting;
    fitting.szName = name;
    for (const auto& column : resistance::kFittingColumns) fitting.*column.coefficient = coefficient;
    return fitting;
  }
  void AddFitting(CZPPipePartsCoe fitting) { store.m_arrPartsCoe.Add(fitting); }

  CString Names() const {
    CString names;
    for (const CZPPipePartsCoe& fitting : store.m_arrPartsCoe) names += fitting.szName + L" ";
    return names;
  }
  // The first coefficient of each fitting.
  CString Coefficients() const {
    CString texts;
    for (const CZPPipePartsCoe& fitting : store.m_arrPartsCoe)
      texts += ZP::ftoa(fitting.dbDN15, 9, true) + L" ";
    return texts;
  }
  static void ExpectDefaults(const CZPPipe3T4TCoe& tees) {
    int number = 0;
    for (const auto& flow : resistance::kTeeFlows) {
      ++number;
      EXPECT_EQ(tees.*flow.coefficient, number <= 3 ? number : 0) << CString(flow.key).ToUtf8();
    }
  }

  TempInstall install;
  CZPLocalResistanceMng& store;
  VkDtDictionary root;
};
