// A maker with the models A, B and C (C exposed) in the fan-coil catalogue, over an installation of the
// test's own.
#pragma once

#include "plugin/base/DefaultValues.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/OwnedEntries.h"
#include "tests/support/TempInstall.h"

#include <gtest/gtest.h>

struct FanCoilCatalogue {
  explicit FanCoilCatalogue(const TempInstall& install) {
    install.Write("Data/KTSLDatabase.xml", R"(<dictionary><item name="Block"/></dictionary>)");
    ZP::SetDefaultValuesFile(CString::FromUtf8((install.Root() / "Defaults.idp").string()));
    fancoil::DeleteEntries(manager.m_arrFactories);
    maker->SetName(L"甲");
    EXPECT_EQ(manager.Add(maker), 1);
    for (const wchar_t* name : {L"A", L"B", L"C"}) {
      auto* model = new CFCUEquipment;
      model->SetName(name);
      EXPECT_EQ(maker->Add(model), 1);
    }
    maker->GetEquipment(L"C")->m_data.szInstallStyle = L"明装";
  }
  ~FanCoilCatalogue() {
    fancoil::DeleteEntries(manager.m_arrFactories);
    ZP::SetDefaultValuesFile(CString());
  }
  FanCoilCatalogue(const FanCoilCatalogue&) = delete;
  FanCoilCatalogue& operator=(const FanCoilCatalogue&) = delete;

  // "甲: A B C", a maker a line.
  CString Names() const {
    CString all;
    for (const CFCUFactory* factory : manager.m_arrFactories) {
      all += factory->GetName() + L":";
      for (const CFCUEquipment* model : factory->m_arrEquipments) all += L" " + model->GetName();
      all += L"\n";
    }
    return all;
  }

  CFCUManager& manager = *CFCUManager::GetInstance();
  CFCUFactory* maker = new CFCUFactory; // the manager's
};
