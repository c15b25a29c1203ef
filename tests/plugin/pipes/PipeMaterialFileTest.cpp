#include "host/afx/MessageLog.h"
#include "plugin/pipes/PipeFields.h"
#include "tests/plugin/pipes/CatalogueFixture.h"
#include "tests/support/AwkwardNames.h"

namespace {

// A value of each field that no other field and no default has.
CZPPipeMaterial* AddDistinct(CZPPipeMaterialManager& catalogue, const wchar_t* name) {
  auto* material = new CZPPipeMaterial;
  material->SetName(name);
  double number = 0.1 + 0.2; // no short decimal: full precision must survive
  for (const PipeMaterialField& field : kPipeMaterialFields) {
    number += 1;
    if (const auto* real = std::get_if<double CZPPipeMaterial::*>(&field.member))
      (*material).*(*real) = number;
    if (const auto* text = std::get_if<CString CZPPipeMaterial::*>(&field.member))
      (*material).*(*text) = CString(L"文 “") + field.key + L"\\\"";
  }
  for (int i = 0; i < 3; ++i) {
    SZPPipeDNData row;
    for (const PipeRowField& field : kPipeRowFields) row.*field.member = number += 1.25;
    material->m_arrDNData.Add(row);
  }
  catalogue.m_arrMaterials.Add(material);
  return material;
}

void ExpectEqual(const CZPPipeMaterial& a, const CZPPipeMaterial& b) {
  EXPECT_EQ(a.GetName(), b.GetName());
  for (const PipeMaterialField& field : kPipeMaterialFields)
    std::visit([&](auto member) { EXPECT_EQ(a.*member, b.*member) << CString(field.key).ToUtf8(); },
               field.member);
  ASSERT_EQ(a.m_arrDNData.GetSize(), b.m_arrDNData.GetSize());
  for (int i = 0; i < a.m_arrDNData.GetSize(); ++i)
    for (const PipeRowField& field : kPipeRowFields)
      EXPECT_EQ(a.m_arrDNData[i].*field.member, b.m_arrDNData[i].*field.member)
          << CString(field.key).ToUtf8();
}

class PipeFile : public CatalogueFixture {
 protected:
  // A section with the materials named, each with an empty table; the test fills in the rest.
  CIDPEx* SectionOf(CIDPEx& root, std::initializer_list<const wchar_t*> names) {
    root.SetSubValue(L"Version", L"1.0");
    root.SetSubValue(kPipeSection, L"");
    CIDPEx* section = root.GetSubItem(kPipeSection);
    int index = 0;
    for (const wchar_t* name : names) {
      CString key;
      key.Format(L"%d", index);
      section->SetSubValue(key, index++);
      CIDPEx* record = section->GetSubItem(key);
      record->SetSubValue(name, L"");
      record->GetSubItem(name)->SetSubValue(kPipeTable, L"");
    }
    return section;
  }
};

TEST_F(PipeFile, GivesBackEveryFieldOfEveryMaterial) {
  const CZPPipeMaterial first = *AddDistinct(catalogue, L"甲");
  const CZPPipeMaterial second = *AddDistinct(catalogue, L"乙 \"2\"");
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 2);
  ExpectEqual(*catalogue.m_arrMaterials[0], first);
  ExpectEqual(*catalogue.m_arrMaterials[1], second);
}

TEST_F(PipeFile, HasItsKeysInTheOrderOfTheSchema) {
  AddDistinct(catalogue, L"甲");
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  const auto keys = [](CIDPEx* node) {
    CString joined;
    for (const CString key : node->SubKeyNames) joined += key + L"|";
    return joined;
  };
  EXPECT_EQ(keys(&root), L"Version|管材管径方案|");
  CIDPEx* record = root.GetSubItem(L"管材管径方案")->GetSubItem(L"0");
  CIDPEx* material = record->GetSubItem(L"甲");
  EXPECT_EQ(keys(material), L"管径数据|绝对粗糙度|前缀字符|参数A|连接字符|参数B|后缀字符|沿线距离|");
  EXPECT_EQ(keys(material->GetSubItem(L"管径数据")), L"0|1|2|");
  EXPECT_EQ(keys(material->GetSubItem(L"管径数据")->GetSubItem(L"0")), L"公称直径|外径|内径|壁厚|");
  int index = -1;
  EXPECT_TRUE(material->GetSubItem(L"管径数据")->GetSubValue(L"2", index));
  EXPECT_EQ(index, 2);
}

TEST_F(PipeFile, MissingGivesAnEmptyCatalogueWithoutAWord) {
  afx::ClearLoggedMessages();
  EXPECT_FALSE(Reload());
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0);
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(PipeFile, OfAnotherVersionIsNotReadAndIsRescuedBeforeItIsReplaced) {
  CIDPEx root;
  SectionOf(root, {L"甲"});
  root.SetSubValue(L"Version", L"2.0");
  ASSERT_TRUE(root.Save(Path()));
  const std::string before = install.Read(kFile);
  EXPECT_FALSE(Reload());
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0);
  EXPECT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), before);
}

TEST_F(PipeFile, WithoutThePipeSectionIsAnEmptyCatalogue) {
  CIDPEx root;
  root.SetSubValue(L"Version", L"1.0");
  root.SetSubValue(L"风管管材方案", L"");
  ASSERT_TRUE(root.Save(Path()));
  EXPECT_TRUE(Reload());
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0);
}

TEST_F(PipeFile, WithoutEntriesIsAnEmptyCatalogue) {
  CIDPEx root;
  SectionOf(root, {});
  ASSERT_TRUE(root.Save(Path()));
  EXPECT_TRUE(Reload());
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0);
}

TEST_F(PipeFile, SkipsRecordsWithoutAMaterialOrWithoutATable) {
  CIDPEx root;
  CIDPEx* section = SectionOf(root, {L"甲", L"乙", L"丙"});
  section->GetSubItem(L"0")->ClearDataFromMemory();
  section->GetSubItem(L"1")->GetSubItem(L"乙")->ClearDataFromMemory();
  section->SetSubValue(L"别的", L"not a number, so never asked for");
  ASSERT_TRUE(root.Save(Path()));
  EXPECT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrMaterials[0]->GetName(), L"丙");
}

TEST_F(PipeFile, KeepsACopyBeforeItLosesARecordThatCouldNotBeRead) {
  for (const char* record :
       {R"("0":[0,{"无表":["",{"前缀字符":"De"}]}])", R"("7":[7,{"甲":["",{"管径数据":""}]}])"}) {
    const std::string text = std::string(R"(["",{"Version":"1.0","管材管径方案":["",{)") + record + "}]}]";
    install.Write(kFile, text);
    afx::ClearLoggedMessages();
    EXPECT_TRUE(Reload());
    EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0);
    EXPECT_EQ(afx::LoggedMessages().size(), 1u);
    ASSERT_TRUE(catalogue.SaveData());
    EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
    std::filesystem::remove(install.Root() / (std::string(kFile) + ".rescued-1"));
  }
}

TEST_F(PipeFile, KeepsNamesOfAnyCharacters) {
  const auto names = AwkwardNames();
  for (const CString& name : names) AddNamed(name);
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), static_cast<int>(names.size()));
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(catalogue.m_arrMaterials[static_cast<int>(i)]->GetName(), names[i]) << i;
}

TEST_F(PipeFile, LeavesFieldsThatItLacksAtTheirDefaults) {
  CIDPEx root;
  CIDPEx* table = SectionOf(root, {L"甲"})->GetSubItem(L"0")->GetSubItem(L"甲")->GetSubItem(kPipeTable);
  table->SetSubValue(L"0", 0);
  table->SetSubValue(L"1", 1);
  table->GetSubItem(L"1")->SetSubValue(L"外径", 33.7);
  ASSERT_TRUE(root.Save(Path()));
  EXPECT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  CZPPipeMaterial expected;
  expected.SetName(L"甲");
  SZPPipeDNData row;
  expected.m_arrDNData.Add(row);
  row.dbOuter = 33.7; // the thickness is a field of its own and isn't computed anew
  expected.m_arrDNData.Add(row);
  ExpectEqual(*catalogue.m_arrMaterials[0], expected);
}

TEST_F(PipeFile, MayHoldANameTwice) {
  CIDPEx root;
  SectionOf(root, {L"甲", L"甲"});
  ASSERT_TRUE(root.Save(Path()));
  EXPECT_TRUE(Reload());
  EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 2);
}

TEST_F(PipeFile, KeepsAMaterialWithoutANameUnderTheEmptyKey) {
  AddNamed(L"");
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrMaterials[0]->GetName(), L"");
}

TEST_F(PipeFile, HoldsATableWithoutRowsAsAKeyWithoutKeys) {
  AddNamed(L"甲");
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  CIDPEx* table = root.GetSubItem(kPipeSection)->GetSubItem(L"0")->GetSubItem(L"甲")->GetSubItem(kPipeTable);
  ASSERT_NE(table, nullptr);
  EXPECT_TRUE(table->SubKeyNames.IsEmpty());
  ASSERT_TRUE(Reload());
  EXPECT_TRUE(catalogue.m_arrMaterials[0]->m_arrDNData.IsEmpty());
}

TEST_F(PipeFile, LeavesTheIndexOfANullElementEmpty) {
  catalogue.m_arrMaterials.Add(nullptr);
  AddNamed(L"甲");
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrMaterials[0]->GetName(), L"甲");
}

TEST_F(PipeFile, KeepsWhatOthersWroteIntoItAfterItWasRead) {
  AddNamed(L"甲");
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  root.SetSubValue(L"风管管材方案", L"ducts");
  root.GetSubItem(L"风管管材方案")->SetSubValue(L"0", 0);
  ASSERT_TRUE(root.Save(Path()));
  AddNamed(L"乙");
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx after;
  ASSERT_TRUE(after.Open(Path()));
  CString ducts;
  EXPECT_TRUE(after.GetSubValue(L"风管管材方案", ducts));
  EXPECT_EQ(ducts, L"ducts");
  ASSERT_NE(after.GetSubItem(L"风管管材方案")->GetSubItem(L"0"), nullptr);
  EXPECT_EQ(after.GetSubItem(kPipeSection)->SubKeyNames.GetSize(), 2);
}

TEST_F(PipeFile, LosesTheMaterialsThatWereRemoved) {
  CZPPipeMaterial* gone = AddNamed(L"甲");
  AddNamed(L"乙");
  ASSERT_TRUE(catalogue.SaveData());
  catalogue.Remove(gone);
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrMaterials[0]->GetName(), L"乙");
}

TEST_F(PipeFile, CutOffAnywhereGivesNoMaterialAndNoCrash) {
  AddDistinct(catalogue, L"甲");
  ASSERT_TRUE(catalogue.SaveData());
  std::string whole = install.Read(kFile);
  while (!whole.empty() && std::isspace(static_cast<unsigned char>(whole.back()))) whole.pop_back();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    install.Write(kFile, whole.substr(0, length));
    EXPECT_FALSE(Reload()) << length;
    EXPECT_EQ(catalogue.m_arrMaterials.GetSize(), 0) << length;
  }
}

TEST_F(PipeFile, WithAKeyTwiceIsDamaged) {
  install.Write(kFile, R"(["",{"Version":"1.0","Version":"1.0"}])");
  EXPECT_FALSE(Reload());
}

TEST_F(PipeFile, ThatCannotBeWrittenMakesTheSaveFail) {
  install.Write("Data", "a file where the folder should be");
  AddNamed(L"甲");
  EXPECT_FALSE(catalogue.SaveData());
}

} // namespace
