#include <gtest/gtest.h>

#include <type_traits>

#include "plugin/fancoil/CFCUFactory.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/EquipmentFields.h"

namespace {

TEST(SKTFCUEquipmentData, BeginsWithTheDefaultsOfATypicalConcealedUnit) {
  const SKTFCUEquipmentData data;
  EXPECT_EQ(data.szFactory, L"");
  EXPECT_EQ(data.szInstallStyle, L"暗装");
  EXPECT_EQ(data.szStructStyle, L"卧式");
  EXPECT_EQ(data.dbLength, 100.0);
  EXPECT_EQ(data.dbWidth, 100.0);
  EXPECT_EQ(data.dbHeight, 100.0);
  EXPECT_EQ(data.dbCadLength, 1.0);
  EXPECT_EQ(data.dbCadWidth, 1.0);
  int zeros = 0;
  int empties = 0;
  for (const EquipmentField& field : kEquipmentFields)
    std::visit(
        [&](auto member) {
          if constexpr (std::is_same_v<decltype(member), CString SKTFCUEquipmentData::*>)
            empties += (data.*member).IsEmpty();
          else
            zeros += data.*member == 0;
        },
        field.member);
  EXPECT_EQ(zeros, 14);
  EXPECT_EQ(empties, 5);
}

TEST(SKTFCUEquipmentData, HasTwentySixStoredFields) {
  EXPECT_EQ(std::size(kEquipmentFields), 26u);
  EXPECT_EQ(CString(kEquipmentFields[0].key), L"设备型号");
  EXPECT_EQ(CString(kEquipmentFields[25].key), L"CAD宽");
}

TEST(CFCUEquipment, SetNameSetsTheModelToo) {
  CFCUEquipment equipment;
  CZPObject& base = equipment;
  base.SetName(L"FP-34");
  EXPECT_EQ(equipment.GetName(), L"FP-34");
  EXPECT_EQ(equipment.m_data.szMode, L"FP-34");
}

TEST(CFCUEquipment, CopiesTakeTheRecordTheScratchValuesAndTheParent) {
  CFCUFactory parent;
  CFCUEquipment original;
  original.SetName(L"FP-34");
  original.m_data.dbPower = 37.5;
  original.SetRealQ(1.5);
  original.SetRealG(2.5);
  original.SetParent(&parent);
  const CFCUEquipment copy(original);
  CFCUEquipment assigned;
  assigned = original;
  for (const CFCUEquipment* each : {&copy, static_cast<const CFCUEquipment*>(&assigned)}) {
    EXPECT_EQ(each->GetName(), L"FP-34");
    EXPECT_EQ(each->m_data.szMode, L"FP-34");
    EXPECT_EQ(each->m_data.dbPower, 37.5);
    EXPECT_EQ(each->GetRealQ(), 1.5);
    EXPECT_EQ(each->GetRealG(), 2.5);
    EXPECT_EQ(each->GetParent(), &parent);
  }
}

TEST(CFCUEquipment, BeginsWithoutParentAndScratchValues) {
  const CFCUEquipment equipment;
  EXPECT_EQ(equipment.GetParent(), nullptr);
  EXPECT_EQ(equipment.GetRealQ(), 0.0);
  EXPECT_EQ(equipment.GetRealG(), 0.0);
}

TEST(FanCoilClasses, TellTheirClassAtRunTime) {
  CFCUEquipment equipment;
  CFCUFactory factory;
  EXPECT_EQ(equipment.GetClassName(), L"CFCUEquipment");
  EXPECT_EQ(factory.GetClassName(), L"CFCUFactory");
  for (CRuntimeClass* each :
       {RUNTIME_CLASS(CFCUEquipment), RUNTIME_CLASS(CFCUFactory), RUNTIME_CLASS(CFCUManager)})
    EXPECT_EQ(each->m_pBaseClass, RUNTIME_CLASS(CZPObject));
  EXPECT_EQ(CString(RUNTIME_CLASS(CFCUManager)->m_lpszClassName), L"CFCUManager");
}

} // namespace
