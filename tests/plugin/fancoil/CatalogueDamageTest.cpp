// Catalogue files that no program of ours has written: cut off, with wrong types, with counts beyond reason.
#include <chrono>

#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

using CatalogueDamage = CatalogueFixture;

TEST_F(CatalogueDamage, CutOffAtAnyByteReadsAsEmptyOrWhole) {
  CFCUFactory* factory = AddFactory(L"甲\U0001F600");
  AddModel(factory, L"A\"\\");
  const CString whole = Outline();
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string text = install.Read(kFile);
  ASSERT_EQ(text.back(), '\n');
  for (std::size_t length = 0; length < text.size(); ++length) {
    PutText(text.substr(0, length));
    const bool complete = length == text.size() - 1; // all but the last line feed
    EXPECT_EQ(Reload(), complete ? 1 : 0) << length;
    EXPECT_EQ(Outline(), complete ? whole : CString()) << length;
  }
}

TEST_F(CatalogueDamage, AByteThatIsNotTextReadsAsEmpty) {
  AddModel(AddFactory(L"甲"), L"A");
  ASSERT_EQ(catalogue.SaveData(), 1);
  std::string text = install.Read(kFile);
  text[text.find("甲") + 1] = '\xFF';
  install.Write(kFile, text);
  EXPECT_EQ(Reload(), 0);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

// Every single replacement of a byte leaves something that is read without harm.
TEST_F(CatalogueDamage, AnyChangedByteIsSurvived) {
  AddModel(AddFactory(L"甲"), L"A");
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string text = install.Read(kFile);
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const char c : {'9', '-', '"', ']', '\0'}) {
      std::string changed = text;
      changed[at] = c;
      PutText(changed);
      const int result = Reload();
      EXPECT_TRUE(result == 1 || (result == 0 && Outline().IsEmpty())) << changed;
    }
  }
}

TEST_F(CatalogueDamage, ACountBeyondReasonCostsNoTime) {
  CIDPEx root;
  Begin(root, 2147483647);
  PutFactory(root, 0, L"甲", {L"A"}).SetSubValue(L"Count", 2147483647);
  PutFactory(root, 2000000000, L"乙", {L"B"});
  PutFactory(root, 10, L"丙", {});
  PutItem(root, L"Factory007").SetSubValue(L"Name", L"不是序号");
  PutItem(root, L"Factory2147483647").SetSubValue(L"Name", L"超出个数");
  PutItem(root, L"Factory").SetSubValue(L"Name", L"无序号");
  SaveFile(root);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(FileOutline(), L"甲{A }丙{}乙{B }");
  CKTDatabaseOperation operation;
  SKTFCUEquipmentData data;
  EXPECT_FALSE(operation.GetEquipmentData(L"Z", L"甲", data));
  EXPECT_FALSE(operation.AddFactory(L"丁"));
  EXPECT_FALSE(operation.AddEquipment(FullRecord(L"Z"), L"甲", false));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(FileOutline(), L"甲{A }丙{}乙{B }");
}

TEST_F(CatalogueDamage, ANegativeCountIsNone) {
  CIDPEx root;
  Begin(root, -1);
  PutFactory(root, 0, L"甲", {});
  SaveFile(root);
  EXPECT_EQ(FileOutline(), L"");
}

TEST_F(CatalogueDamage, PlainValuesInPlaceOfItemsAreSkipped) {
  install.Write(kFile, R"(["Version:1.0",{"Count":3,"Factory0":"text","Factory1":[0,{"Name":"甲","Count":2,)"
                       R"("Equipment0":7,"Equipment1":[0,{"设备型号":"A"}]}],"Factory2":0.5}])");
  EXPECT_EQ(FileOutline(), L"甲{A }");
}

TEST_F(CatalogueDamage, ValuesOfAnotherTypeAreConverted) {
  install.Write(kFile, R"(["Version:1.0",{"Count":"1","Factory0":[0,{"Name":12,"Count":1.0,"Equipment0":[0,)"
                       R"({"设备型号":34,"功率":"37.5瓦","风机数量":2.9,"盘管数量":"x","实际长":850}]}]}])");
  ASSERT_EQ(FileOutline(), L"12{34 }");
  const SKTFCUEquipmentData& data = catalogue.GetInitialFCU()->m_data;
  EXPECT_EQ(data.dbPower, 37.5);
  EXPECT_EQ(data.nFanCount, 2);
  EXPECT_EQ(data.nCoilCount, 0);
  EXPECT_EQ(data.dbLength, 850.0);
}

} // namespace
