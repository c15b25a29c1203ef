#include "tests/plugin/fancoil/CatalogueFixture.h"
#include "tests/support/FullDisk.h"

namespace {

class EquipmentEdit : public CatalogueFixture {
 protected:
  EquipmentEdit() {
    CIDPEx root;
    Begin(root, 2);
    PutFactory(root, 0, L"甲", {L"A", L"B"});
    PutFactory(root, 1, L"乙", {});
    SaveFile(root);
    // The same with a blank in front, so that a save can be told from none.
    before = install.Read(kFile);
    before.insert(before.begin(), ' ');
    install.Write(kFile, before);
  }
  bool IsUntouched() const { return install.Read(kFile) == before; }
  bool IsSavedUnchanged() { return install.Read(kFile) == before.substr(1); }

  CKTDatabaseOperation operation;
  std::string before;
};

TEST_F(EquipmentEdit, AddAppendsAllFields) {
  EXPECT_TRUE(operation.AddEquipment(FullRecord(L"C"), L"甲", false));
  EXPECT_TRUE(operation.AddEquipment(FullRecord(L"C", 5), L"乙", true));
  EXPECT_EQ(FileOutline(), L"甲{A B C }乙{C }");
  ExpectSameRecord(catalogue.GetFCUEquipment(L"C", L"甲")->m_data, FullRecord(L"C"));
  ExpectSameRecord(catalogue.GetFCUEquipment(L"C", L"乙")->m_data, FullRecord(L"C", 5));
}

TEST_F(EquipmentEdit, AddWritesWhatTheCatalogueWrites) {
  CFCUEquipment* model = AddModel(AddFactory(L"厂"), L"C");
  model->m_data = FullRecord(L"C");
  ASSERT_EQ(catalogue.SaveData(), 1);
  const std::string expected = install.Read(kFile);
  fancoil::DeleteEntries(catalogue.m_arrFactories[0]->m_arrEquipments);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_TRUE(operation.AddEquipment(FullRecord(L"C"), L"厂", false));
  EXPECT_EQ(install.Read(kFile), expected);
}

TEST_F(EquipmentEdit, AddDoesNotStoreTheMakerOfTheRecord) {
  SKTFCUEquipmentData data = FullRecord(L"C");
  data.szFactory = L"别的厂";
  EXPECT_TRUE(operation.AddEquipment(data, L"乙", false));
  EXPECT_EQ(install.Read(kFile).find("别的厂"), std::string::npos);
}

TEST_F(EquipmentEdit, AddOfAModelThatIsThereLeavesTheFileAsItWas) {
  EXPECT_FALSE(operation.AddEquipment(FullRecord(L"B"), L"甲", false));
  EXPECT_TRUE(IsUntouched());
  EXPECT_EQ(user.output, L"");
}

TEST_F(EquipmentEdit, AddWithOverwriteReplacesAllFieldsInPlace) {
  EXPECT_TRUE(operation.AddEquipment(FullRecord(L"A"), L"甲", true));
  EXPECT_EQ(FileOutline(), L"甲{A B }乙{}");
  ExpectSameRecord(catalogue.GetFCUEquipment(L"A", L"甲")->m_data, FullRecord(L"A"));
  EXPECT_EQ(user.output, L"");
}

TEST_F(EquipmentEdit, AddToAnUnknownMakerSavesTheFileUnchangedAndGivesTrue) {
  EXPECT_TRUE(operation.AddEquipment(FullRecord(L"C"), L"丙", false));
  EXPECT_TRUE(IsSavedUnchanged());
}

TEST_F(EquipmentEdit, ChangeWithTheSameNameReplacesAllFields) {
  EXPECT_TRUE(operation.ChangeEquipmentData(L"B", L"甲", FullRecord(L"B")));
  EXPECT_EQ(FileOutline(), L"甲{A B }乙{}");
  ExpectSameRecord(catalogue.GetFCUEquipment(L"B", L"甲")->m_data, FullRecord(L"B"));
}

TEST_F(EquipmentEdit, ChangeOfTheNameOfAModelPrintsTheMessageAndSavesNothing) {
  EXPECT_FALSE(operation.ChangeEquipmentData(L"A", L"甲", FullRecord(L"全新的名称")));
  EXPECT_EQ(user.output, L"\n修改失败!新的设备型号已存在数据库中，请更换名称!");
  EXPECT_TRUE(IsUntouched());
}

TEST_F(EquipmentEdit, ChangeOfAModelThatIsNotThereGivesFalseWithoutAMessage) {
  EXPECT_FALSE(operation.ChangeEquipmentData(L"X", L"甲", FullRecord(L"A")));
  EXPECT_FALSE(operation.ChangeEquipmentData(L"X", L"甲", FullRecord(L"X")));
  EXPECT_EQ(user.output, L"");
  EXPECT_TRUE(IsUntouched());
}

TEST_F(EquipmentEdit, ChangeAtAnUnknownMakerSavesTheFileUnchanged) {
  EXPECT_TRUE(operation.ChangeEquipmentData(L"A", L"丙", FullRecord(L"B")));
  EXPECT_TRUE(IsSavedUnchanged());
  EXPECT_EQ(user.output, L"");
}

TEST_F(EquipmentEdit, RemoveFindsNothingInFilesAsTheyAreWritten) {
  EXPECT_TRUE(operation.RemoveEquipment(L"A", L"甲"));
  EXPECT_TRUE(IsSavedUnchanged());
  EXPECT_TRUE(operation.RemoveEquipment(L"A", L"丙"));
  EXPECT_TRUE(IsSavedUnchanged());
}

TEST_F(EquipmentEdit, RemoveTakesARecordThatHasTheOtherKey) {
  CIDPEx root;
  Begin(root, 1);
  CIDPEx& factory = PutFactory(root, 0, L"甲", {L"A", L"B", L"C"});
  factory.GetSubItem(L"Equipment1")->SetSubValue(L"设备型号名", L"B");
  SaveFile(root);
  EXPECT_TRUE(operation.RemoveEquipment(L"B", L"甲"));
  CIDPEx after;
  ASSERT_TRUE(after.Open(Path()));
  CIDPEx* left = after.GetSubItem(L"Factory0");
  int count = 0;
  left->GetSubValue(L"Count", count);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(left->GetSubItem(L"Equipment1"), nullptr);
  EXPECT_NE(left->GetSubItem(L"Equipment2"), nullptr);
  EXPECT_EQ(FileOutline(), L"甲{A }");
}

TEST_F(EquipmentEdit, GetEquipmentDataFillsAndGivesFalse) {
  ASSERT_TRUE(operation.AddEquipment(FullRecord(L"C"), L"甲", false));
  SKTFCUEquipmentData out;
  out.szFactory = L"预置";
  EXPECT_FALSE(operation.GetEquipmentData(L"C", L"甲", out));
  ExpectSameRecord(out, FullRecord(L"C"));
  EXPECT_EQ(out.szFactory, L"预置");
}

TEST_F(EquipmentEdit, GetEquipmentDataGivesTrueForAnUnknownMakerOnly) {
  SKTFCUEquipmentData out = FullRecord(L"预置");
  EXPECT_TRUE(operation.GetEquipmentData(L"A", L"丙", out));
  EXPECT_FALSE(operation.GetEquipmentData(L"X", L"甲", out));
  ExpectSameRecord(out, FullRecord(L"预置"));
  std::filesystem::remove(install.Root() / kFile);
  EXPECT_FALSE(operation.GetEquipmentData(L"A", L"丙", out));
}

TEST_F(EquipmentEdit, GetEquipmentDataLeavesFieldsOfMissingKeysAlone) {
  SKTFCUEquipmentData out = FullRecord(L"预置");
  operation.GetEquipmentData(L"A", L"甲", out);
  ExpectSameRecord(out, FullRecord(L"A"));
}

TEST_F(EquipmentEdit, GetEquipmentDataTakesTheLaterOfTwoMatches) {
  CIDPEx root;
  Begin(root, 1);
  CIDPEx& factory = PutFactory(root, 0, L"甲", {L"A", L"A"});
  factory.GetSubItem(L"Equipment0")->SetSubValue(L"功率", 1.5);
  factory.GetSubItem(L"Equipment0")->SetSubValue(L"噪音", 30.5);
  factory.GetSubItem(L"Equipment1")->SetSubValue(L"功率", 2.5);
  SaveFile(root);
  SKTFCUEquipmentData out;
  operation.GetEquipmentData(L"A", L"甲", out);
  EXPECT_EQ(out.dbPower, 2.5);
  EXPECT_EQ(out.dbNoiseLevel, 30.5);
}

TEST_F(EquipmentEdit, GetEquipmentDataWritesNothing) {
  SKTFCUEquipmentData out;
  operation.GetEquipmentData(L"A", L"甲", out);
  operation.GetEquipmentData(L"A", L"丙", out);
  EXPECT_TRUE(IsUntouched());
}

TEST_F(EquipmentEdit, WithoutAReadableFileAllGiveFalse) {
  for (const bool damaged : {false, true}) {
    std::filesystem::remove(install.Root() / kFile);
    if (damaged) install.Write(kFile, "[");
    EXPECT_FALSE(operation.AddEquipment(FullRecord(L"A"), L"甲", true));
    EXPECT_FALSE(operation.ChangeEquipmentData(L"A", L"甲", FullRecord(L"A")));
    EXPECT_FALSE(operation.RemoveEquipment(L"A", L"甲"));
    EXPECT_EQ(install.Has(kFile), damaged);
  }
}

TEST_F(EquipmentEdit, AFailingSaveKeepsTheFileAndGivesFalse) {
  const auto fails = [&](auto edit) {
    EXPECT_FALSE(OnAFullDisk(edit));
    EXPECT_TRUE(IsUntouched());
  };
  fails([&] { return operation.AddEquipment(FullRecord(L"C"), L"甲", false); });
  fails([&] { return operation.AddEquipment(FullRecord(L"A"), L"甲", true); });
  fails([&] { return operation.AddEquipment(FullRecord(L"A"), L"丙", true); });
  fails([&] { return operation.ChangeEquipmentData(L"A", L"甲", FullRecord(L"A")); });
  fails([&] { return operation.RemoveEquipment(L"A", L"甲"); });
  fails([&] { return operation.AddFactory(L"丙"); });
  fails([&] { return operation.RemoveFactory(L"甲"); });
  fails([&] { return operation.ChangeFactoryName(L"甲", L"丙"); });
}

// What this process has read and written so far, bytes, by the system's own account.
struct Traffic {
  long read = 0;
  long written = 0;
  Traffic() {
    std::ifstream account("/proc/self/io");
    std::string word;
    account >> word >> read >> word >> written;
  }
};

// The store itself looks once more at the file that it replaces, whether it is worth a copy.
TEST_F(EquipmentEdit, AnAddReadsTheFileOnceAndWritesItOnce) {
  CFCUFactory* factory = AddFactory(L"甲");
  for (int i = 0; i < 1000; ++i) AddModel(factory, L"M" + ZP::itoa(i));
  ASSERT_EQ(catalogue.SaveData(), 1);
  const long size = static_cast<long>(std::filesystem::file_size(install.Root() / kFile));
  const auto expectOnce = [&](auto edit) {
    const Traffic start;
    EXPECT_TRUE(edit());
    const Traffic end;
    if (start.read == 0) GTEST_SKIP() << "no account of the traffic on this system";
    EXPECT_GE(end.read - start.read, size);
    EXPECT_LT(end.read - start.read, size * 5 / 2);
    EXPECT_GE(end.written - start.written, size);
    EXPECT_LT(end.written - start.written, size * 3 / 2);
  };
  expectOnce([&] { return operation.AddEquipment(FullRecord(L"M1000"), L"甲", false); });
  expectOnce([&] { return operation.AddEquipment(FullRecord(L"M500"), L"甲", true); });
  expectOnce([&] { return operation.ChangeEquipmentData(L"M500", L"甲", FullRecord(L"M500")); });
}

TEST_F(EquipmentEdit, TakesAwkwardNames) {
  for (const CString& name : kAwkwardNames)
    EXPECT_TRUE(operation.AddEquipment(FullRecord(name), L"乙", false)) << name.ToUtf8();
  for (const CString& name : kAwkwardNames) {
    SKTFCUEquipmentData out;
    operation.GetEquipmentData(name, L"乙", out);
    ExpectSameRecord(out, FullRecord(name));
    EXPECT_FALSE(operation.AddEquipment(FullRecord(name), L"乙", false)) << name.ToUtf8();
  }
}

} // namespace
