#include "host/afx/MessageLog.h"
#include "tests/plugin/fancoil/CatalogueFixture.h"
#include "tests/support/FullDisk.h"

namespace {

using CatalogueData = CatalogueFixture;

CString Keys(CIDPEx* node) {
  CString joined;
  for (const CString key : node->SubKeyNames) joined += key + L"|";
  return joined;
}

TEST_F(CatalogueData, GivesBackEveryFieldOfEveryModel) {
  CFCUFactory* factory = AddFactory(L"甲厂");
  CFCUEquipment* model = AddModel(factory, L"FP-34");
  model->m_data = FullRecord(L"FP-34");
  AddModel(factory, L"FP-51");
  AddFactory(L"乙厂");
  ASSERT_EQ(catalogue.SaveData(), 1);
  ASSERT_EQ(Reload(), 1);
  EXPECT_EQ(Outline(), L"甲厂{FP-34 FP-51 }乙厂{}");
  const CFCUEquipment* read = catalogue.GetFCUEquipment(L"FP-34", L"甲厂");
  ASSERT_NE(read, nullptr);
  ExpectSameRecord(read->m_data, FullRecord(L"FP-34"));
  EXPECT_EQ(read->m_data.szFactory, L"甲厂");
  EXPECT_EQ(read->GetParent(), catalogue.GetFactory(L"甲厂"));
  ExpectSameRecord(catalogue.GetFCUEquipment(L"FP-51", L"")->m_data, Model(L"FP-51")->m_data);
}

TEST_F(CatalogueData, HasItsKeysInTheOrderOfTheSchema) {
  AddModel(AddFactory(L"甲"), L"A");
  AddFactory(L"乙");
  ASSERT_EQ(catalogue.SaveData(), 1);
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  CString mark;
  root.GetValue(mark);
  EXPECT_EQ(mark, L"Version:1.0");
  EXPECT_EQ(Keys(&root), L"Count|Factory0|Factory1|");
  EXPECT_EQ(Keys(root.GetSubItem(L"Factory0")), L"Name|Count|Equipment0|");
  EXPECT_EQ(Keys(root.GetSubItem(L"Factory1")), L"Name|Count|");
  EXPECT_EQ(Keys(root.GetSubItem(L"Factory0")->GetSubItem(L"Equipment0")),
            L"设备型号|安装形式|结构形式|风量高速|风量中速|风量低速|全冷量|显冷量|制热量|水流量|水压降|"
            L"风机形式|风机数量|电机形式|电机数量|功率|噪音|盘管形式|盘管数量|工作压力|实际长|实际宽|"
            L"实际高|图块|CAD长|CAD宽|");
}

TEST_F(CatalogueData, IsWrittenWithNativeTypes) {
  AddModel(AddFactory(L"甲"), L"A")->m_data.nFanCount = 2;
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string text = install.Read(kFile);
  for (const char* part : {R"("Count":1)", R"("Factory0":[0,)", R"("Equipment0":[0,)", R"("设备型号":"A")",
                           R"("风机数量":2)", R"("风量高速":0.0)", R"("实际长":100.0)"})
    EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST_F(CatalogueData, TheScratchValuesNeverReachTheFile) {
  CFCUEquipment* model = AddModel(AddFactory(L"甲"), L"A");
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string before = install.Read(kFile);
  model->SetRealQ(123.5);
  model->SetRealG(321.5);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(install.Read(kFile), before);
}

TEST_F(CatalogueData, NullEntriesLeaveAnItemWithNothingInIt) {
  catalogue.m_arrFactories.Add(nullptr);
  CFCUFactory* factory = AddFactory(L"甲");
  factory->m_arrEquipments.Add(nullptr);
  AddModel(factory, L"A");
  ASSERT_EQ(catalogue.SaveData(), 1);
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  int count = 0;
  root.GetSubValue(L"Count", count);
  EXPECT_EQ(count, 2);
  int value = -1;
  EXPECT_TRUE(root.GetSubValue(L"Factory0", value));
  EXPECT_EQ(value, 0);
  EXPECT_TRUE(root.GetSubItem(L"Factory0")->SubKeyNames.IsEmpty());
  EXPECT_TRUE(root.GetSubItem(L"Factory1")->GetSubItem(L"Equipment0")->SubKeyNames.IsEmpty());
  ASSERT_EQ(Reload(), 1);
  EXPECT_EQ(Outline(), L"甲{A }");
}

TEST_F(CatalogueData, SavingLosesWhatIsInTheFileOnly) {
  CIDPEx root;
  Begin(root, 1);
  PutFactory(root, 0, L"文件里的", {L"X"});
  root.SetSubValue(L"别的键", L"值");
  SaveFile(root);
  AddFactory(L"内存里的");
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(FileOutline(), L"内存里的{}");
  EXPECT_EQ(install.Read(kFile).find("别的键"), std::string::npos);
}

TEST_F(CatalogueData, ReadingTwiceAppendsTwice) {
  AddModel(AddFactory(L"甲"), L"A");
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(catalogue.ReadData(), 1);
  EXPECT_EQ(Outline(), L"甲{A }甲{A }");
}

TEST_F(CatalogueData, MissingFileIsAFailureAndLeavesTheCatalogueAsItWas) {
  AddFactory(L"甲");
  EXPECT_EQ(catalogue.ReadData(), 0);
  EXPECT_EQ(Outline(), L"甲{}");
}

TEST_F(CatalogueData, OfAnotherVersionReadsAsAnEmptyCatalogue) {
  for (const wchar_t* mark :
       {L"", L"1.0", L"Version:2.0", L"version:1.0", L"Version:1.0 ", L"Version: 1.0"}) {
    CIDPEx root;
    Begin(root, 1, mark);
    PutFactory(root, 0, L"甲", {L"A"});
    SaveFile(root);
    EXPECT_EQ(Reload(), 0) << CString(mark).ToUtf8();
    EXPECT_EQ(Outline(), L"");
  }
}

TEST_F(CatalogueData, OfAnotherVersionIsCopiedBeforeASaveReplacesIt) {
  install.Write(kFile, R"(["Version:9.0",{"新":1}])");
  EXPECT_EQ(Reload(), 0);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), R"(["Version:9.0",{"新":1}])");
}

TEST_F(CatalogueData, WithoutACountHasNoMakers) {
  CIDPEx root;
  root.SetValue(L"Version:1.0");
  PutFactory(root, 0, L"甲", {});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"");
}

TEST_F(CatalogueData, SkipsAFactoryNumberThatIsMissing) {
  CIDPEx root;
  Begin(root, 3);
  PutFactory(root, 0, L"甲", {L"A"});
  PutFactory(root, 2, L"丙", {L"C"});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"甲{A }丙{C }");
}

TEST_F(CatalogueData, SkipsAFactoryWithoutAName) {
  CIDPEx root;
  Begin(root, 2);
  PutFactory(root, 0, L"甲", {L"A"}).DeleteSubKey(L"Name");
  PutFactory(root, 1, L"乙", {});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"乙{}");
}

TEST_F(CatalogueData, SkipsModelsThatAreMissingOrHaveNoName) {
  CIDPEx root;
  Begin(root, 1);
  CIDPEx& factory = PutFactory(root, 0, L"甲", {L"A", L"B", L"C", L"D"});
  factory.DeleteSubKey(L"Equipment1");
  factory.GetSubItem(L"Equipment2")->DeleteSubKey(L"设备型号");
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"甲{A D }");
}

TEST_F(CatalogueData, SeesNoModelBeyondTheCount) {
  CIDPEx root;
  Begin(root, 1);
  PutFactory(root, 0, L"甲", {L"A", L"B", L"C"}).SetSubValue(L"Count", 2);
  PutFactory(root, 1, L"乙", {});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"甲{A B }");
}

TEST_F(CatalogueData, AMissingKeyLeavesTheDefaultOfItsField) {
  const SKTFCUEquipmentData defaults;
  for (const EquipmentField& missing : kEquipmentFields) {
    if (CString(missing.key) == L"设备型号") continue;
    CIDPEx root;
    Begin(root, 1);
    CIDPEx& item = *PutFactory(root, 0, L"甲", {L"A"}).GetSubItem(L"Equipment0");
    const SKTFCUEquipmentData full = FullRecord(L"A");
    for (const EquipmentField& field : kEquipmentFields)
      std::visit([&](auto member) { item.SetSubValue(field.key, full.*member); }, field.member);
    item.DeleteSubKey(missing.key);
    SaveFile(root);
    ASSERT_EQ(Reload(), 1);
    SKTFCUEquipmentData expected = full;
    std::visit([&](auto member) { expected.*member = defaults.*member; }, missing.member);
    ExpectSameRecord(catalogue.GetInitialFCU()->m_data, expected);
  }
}

TEST_F(CatalogueData, ModelsWithoutSizesHaveThoseOfTheRecord) {
  CIDPEx root;
  Begin(root, 1);
  PutFactory(root, 0, L"甲", {L"A"});
  SaveFile(root);
  ASSERT_EQ(Reload(), 1);
  EXPECT_EQ(catalogue.GetInitialFCU()->m_data.dbLength, 100.0);
  EXPECT_EQ(catalogue.GetInitialFCU()->m_data.dbCadLength, 1.0);
}

TEST_F(CatalogueData, TheFirstOfTwoModelsOfOneNameStands) {
  CIDPEx root;
  Begin(root, 1);
  CIDPEx& factory = PutFactory(root, 0, L"甲", {L"A", L"A", L"B"});
  factory.GetSubItem(L"Equipment0")->SetSubValue(L"功率", 1.5);
  factory.GetSubItem(L"Equipment1")->SetSubValue(L"功率", 2.5);
  SaveFile(root);
  afx::ClearLoggedMessages();
  EXPECT_EQ(FileOutline(), L"甲{A B }");
  EXPECT_EQ(catalogue.GetInitialFCU()->m_data.dbPower, 1.5);
  ASSERT_EQ(afx::LoggedMessages().size(), 1u);
  EXPECT_GE(afx::LoggedMessages()[0].Find(L"“甲”的型号“A”重复"), 0);
}

TEST_F(CatalogueData, TwoFactoriesOfOneNameBothStandAndTheFirstIsFound) {
  CIDPEx root;
  Begin(root, 2);
  PutFactory(root, 0, L"甲", {L"A"});
  PutFactory(root, 1, L"甲", {L"B"});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"甲{A }甲{B }");
  EXPECT_EQ(catalogue.GetFactory(L"甲"), catalogue.m_arrFactories[0]);
}

TEST_F(CatalogueData, KeepsAwkwardNames) {
  CFCUFactory* many = AddFactory(L"many");
  for (const CString& name : kAwkwardNames) {
    AddModel(many, name);
    if (name.IsEmpty()) continue;
    auto* factory = new CFCUFactory;
    factory->SetName(name);
    ASSERT_EQ(catalogue.Add(factory), 1);
    AddModel(factory, name)->m_data.szFanStyle = name;
  }
  const CString before = Outline();
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(FileOutline(), before);
  for (const CString& name : kAwkwardNames) {
    const CFCUEquipment* model = catalogue.GetFCUEquipment(name, name);
    ASSERT_NE(model, nullptr) << name.ToUtf8();
    EXPECT_EQ(model->m_data.szFanStyle, name);
  }
}

TEST_F(CatalogueData, KeepsNumbersExactly) {
  CFCUEquipment* model = AddModel(AddFactory(L"甲"), L"A");
  model->m_data.dbPower = 5e-324;
  model->m_data.dbWPD = -1.7976931348623157e308;
  model->m_data.dbWaterFlow = 1.0 / 3.0;
  model->m_data.nFanCount = -2147483647 - 1;
  const SKTFCUEquipmentData before = model->m_data;
  ASSERT_EQ(catalogue.SaveData(), 1);
  ASSERT_EQ(Reload(), 1);
  ExpectSameRecord(catalogue.GetInitialFCU()->m_data, before);
}

TEST_F(CatalogueData, AFailingSaveKeepsTheOldFileAndGivesZero) {
  AddFactory(L"甲");
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string before = install.Read(kFile);
  AddFactory(L"乙");
  EXPECT_EQ(OnAFullDisk([&] { return catalogue.SaveData(); }), 0);
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_EQ(Outline(), L"甲{}乙{}");
}

// Nothing may be read from it either, so no copy can be kept and nothing is replaced.
TEST_F(CatalogueData, AFolderInThePlaceOfTheFileStays) {
  std::filesystem::create_directories(install.Root() / kFile / "inside");
  EXPECT_EQ(Reload(), 0);
  EXPECT_EQ(catalogue.SaveData(), 0);
  EXPECT_TRUE(install.Has(std::string(kFile) + "/inside"));
}

} // namespace
