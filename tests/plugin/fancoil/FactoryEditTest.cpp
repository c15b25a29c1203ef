#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

class FactoryEdit : public CatalogueFixture {
 protected:
  void PutThree() {
    CIDPEx root;
    Begin(root, 3);
    PutFactory(root, 0, L"甲", {L"A"});
    PutFactory(root, 1, L"乙", {L"B"});
    PutFactory(root, 2, L"丙", {L"C"});
    SaveFile(root);
  }
  int Count() const {
    CIDPEx root;
    EXPECT_TRUE(root.Open(Path()));
    int count = -1;
    root.GetSubValue(L"Count", count);
    return count;
  }
  // A file that says the same but is not written as the store writes it: whether it was saved can be seen.
  void Loosen() const {
    std::string text = install.Read(kFile);
    text.insert(text.begin(), ' ');
    install.Write(kFile, text);
  }
  bool IsRewritten() const { return install.Read(kFile).front() != ' '; }

  CKTDatabaseOperation operation;
};

TEST_F(FactoryEdit, TheConstructorMakesAFileOfNothingButTheMark) {
  CKTDatabaseOperation another;
  EXPECT_EQ(install.Read(kFile), "[\"Version:1.0\",{}]\n");
  EXPECT_EQ(FileOutline(), L"");
  EXPECT_EQ(catalogue.ReadData(), 1);
}

TEST_F(FactoryEdit, TheConstructorRewritesTheFileAndKeepsItsContent) {
  PutThree();
  Loosen();
  CKTDatabaseOperation another;
  EXPECT_TRUE(IsRewritten());
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }丙{C }");
}

TEST_F(FactoryEdit, TheConstructorGivesAForeignFileTheMarkAndKeepsACopy) {
  install.Write(kFile, R"(["Version:2.0",{"Count":0,"新":1}])");
  CKTDatabaseOperation another;
  EXPECT_EQ(install.Read(kFile), "[\"Version:1.0\",{\"Count\":0,\"新\":1}]\n");
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), R"(["Version:2.0",{"Count":0,"新":1}])");
}

TEST_F(FactoryEdit, TheConstructorKeepsACopyOfADamagedFile) {
  install.Write(kFile, "[\"Version:1.0\",{\"Cou");
  CKTDatabaseOperation another;
  EXPECT_EQ(install.Read(kFile), "[\"Version:1.0\",{}]\n");
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), "[\"Version:1.0\",{\"Cou");
}

TEST_F(FactoryEdit, CopiesOfAnObjectWriteNothing) {
  PutThree();
  Loosen();
  CKTDatabaseOperation copy(operation);
  copy = operation;
  EXPECT_FALSE(IsRewritten());
}

TEST_F(FactoryEdit, AddAppendsAnEmptyMaker) {
  PutThree();
  EXPECT_TRUE(operation.AddFactory(L"丁"));
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }丙{C }丁{}");
  EXPECT_EQ(Count(), 4);
}

TEST_F(FactoryEdit, AddToAFileOfTheMarkAloneBeginsAtZero) {
  CKTDatabaseOperation another;
  EXPECT_TRUE(operation.AddFactory(L"甲"));
  EXPECT_EQ(install.Read(kFile),
            "[\"Version:1.0\",{\n\"Factory0\":[0,{\"Name\":\"甲\",\"Count\":0}],\"Count\":1}]\n");
}

TEST_F(FactoryEdit, AddRefusesAMakerThatIsThereAndSavesNothing) {
  PutThree();
  Loosen();
  EXPECT_FALSE(operation.AddFactory(L"乙"));
  EXPECT_FALSE(IsRewritten());
}

TEST_F(FactoryEdit, RemoveFactoryDropsTheLastFactoryFromView) {
  PutThree();
  EXPECT_TRUE(operation.RemoveFactory(L"甲"));
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }");
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  EXPECT_NE(root.GetSubItem(L"Factory2"), nullptr);
}

TEST_F(FactoryEdit, RemoveFactoryDeletesTheLiteralKeyWhereAFileHasIt) {
  CIDPEx root;
  Begin(root, 1);
  PutFactory(root, 0, L"甲", {});
  root.SetSubValue(L"szFactory", L"甲");
  SaveFile(root);
  EXPECT_TRUE(operation.RemoveFactory(L"甲"));
  EXPECT_EQ(install.Read(kFile).find("szFactory"), std::string::npos);
}

TEST_F(FactoryEdit, RemoveOfAnUnknownMakerSavesTheFileUnchanged) {
  PutThree();
  Loosen();
  EXPECT_TRUE(operation.RemoveFactory(L"丁"));
  EXPECT_TRUE(IsRewritten());
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }丙{C }");
}

// The entry that fell out of view is taken again, with a count of 0 that hides what it still holds.
TEST_F(FactoryEdit, AddAfterRemoveTakesThePlaceOfTheDroppedMaker) {
  PutThree();
  ASSERT_TRUE(operation.RemoveFactory(L"甲"));
  EXPECT_TRUE(operation.AddFactory(L"丁"));
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }丁{}");
}

TEST_F(FactoryEdit, ChangeFactoryNameAsksForNoOtherMaker) {
  PutThree();
  EXPECT_TRUE(operation.ChangeFactoryName(L"甲", L"丙"));
  EXPECT_EQ(FileOutline(), L"丙{A }乙{B }丙{C }");
  EXPECT_TRUE(operation.ChangeFactoryName(L"丙", L"戊"));
  EXPECT_EQ(FileOutline(), L"戊{A }乙{B }丙{C }");
}

TEST_F(FactoryEdit, ChangeOfAnUnknownNameSavesTheFileUnchanged) {
  PutThree();
  Loosen();
  EXPECT_TRUE(operation.ChangeFactoryName(L"丁", L"戊"));
  EXPECT_TRUE(IsRewritten());
  EXPECT_EQ(FileOutline(), L"甲{A }乙{B }丙{C }");
}

TEST_F(FactoryEdit, WithoutAReadableFileAllGiveFalseAndWriteNothing) {
  std::filesystem::remove(install.Root() / kFile);
  for (const bool damaged : {false, true}) {
    if (damaged) install.Write(kFile, "[");
    EXPECT_FALSE(operation.AddFactory(L"甲"));
    EXPECT_FALSE(operation.RemoveFactory(L"甲"));
    EXPECT_FALSE(operation.ChangeFactoryName(L"甲", L"乙"));
    EXPECT_EQ(install.Has(kFile), damaged);
  }
  EXPECT_EQ(install.Read(kFile), "[");
}

TEST_F(FactoryEdit, KeepsWhatItDoesNotKnow) {
  install.Write(kFile,
                R"(["Version:1.0",{"前":1.5,"Count":1,"Factory0":[0,{"Name":"甲","注":"x","Count":0}]}])");
  EXPECT_TRUE(operation.ChangeFactoryName(L"甲", L"乙"));
  EXPECT_EQ(install.Read(kFile), "[\"Version:1.0\",{\"前\":1.5,\"Count\":1,\n"
                                 "\"Factory0\":[0,{\"Name\":\"乙\",\"注\":\"x\",\"Count\":0}]}]\n");
}

TEST_F(FactoryEdit, TakesAwkwardNames) {
  CKTDatabaseOperation another;
  CStringArray expected;
  for (const CString& name : kAwkwardNames) {
    EXPECT_TRUE(operation.AddFactory(name)) << name.ToUtf8();
    EXPECT_FALSE(operation.AddFactory(name)) << name.ToUtf8();
    expected.Add(name);
  }
  ASSERT_EQ(Reload(), 1);
  CStringArray names;
  catalogue.GetAllFactoryName(names);
  ASSERT_EQ(names.GetSize(), expected.GetSize());
  for (int i = 0; i < names.GetSize(); ++i) EXPECT_EQ(names[i], expected[i]);
}

TEST_F(FactoryEdit, ARunningCatalogueSeesNothingAndItsSaveOverwritesTheEdit) {
  AddFactory(L"内存");
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_TRUE(operation.AddFactory(L"文件"));
  EXPECT_EQ(catalogue.GetFactory(L"文件"), nullptr);
  ASSERT_EQ(catalogue.SaveData(), 1);
  EXPECT_EQ(FileOutline(), L"内存{}");
}

} // namespace
