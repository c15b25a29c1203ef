#include "ZpPaths.h"
#include "host/afx/MessageLog.h"
#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"
#include "tests/plugin/radiators/RadiatorText.h"

namespace {

std::string Sample(const char* name) {
  const auto path = std::filesystem::path(ZP_SOURCE_DIR) / "tests/plugin/radiators/samples" / name;
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// A value of each field that no other field and no default has.
void MakeDistinct(CZPRadiator& radiator, double number) {
  for (const RadiatorField& field : kRadiatorFields) {
    number += 1.1; // no short sum: full precision must survive
    if (const auto* whole = std::get_if<int CZPRadiator::*>(&field.member))
      radiator.*(*whole) = static_cast<int>(number);
    if (const auto* real = std::get_if<double CZPRadiator::*>(&field.member)) radiator.*(*real) = number;
    if (const auto* text = std::get_if<CString CZPRadiator::*>(&field.member))
      radiator.*(*text) = L"\"片\"\\";
  }
}

class RadiatorFile : public RadiatorCatalogueFixture {
 protected:
  CString Contents() const {
    CString text;
    for (const CZPRadiatorType* type : catalogue.m_arrTypes) {
      text += L"[" + type->GetName() + L"]\n";
      for (const CZPRadiator* radiator : type->m_arrRadiators) text += RadiatorText(*radiator) + L"\n";
    }
    return text;
  }
  static CString Keys(CIDPEx* node) {
    CString joined;
    for (const CString key : node->SubKeyNames) joined += key + L"|";
    return joined;
  }
};

TEST_F(RadiatorFile, OfTheOldVersionLoadsTheSameCatalogueAsItsTwin) {
  ASSERT_TRUE(ReadText(Sample("Srq-1.0.idp")));
  const CString old = Contents();
  EXPECT_EQ(Names(), L"铸铁 \"老\" 散热器(M-132型 圆翼型(单排)) 空() 检测式(椭四柱813型)");
  ASSERT_TRUE(ReadText(Sample("Srq-2.0.idp")));
  EXPECT_EQ(Contents(), old);
  const CZPRadiator* radiator = catalogue.GetRadiator(L"圆翼型(单排)", L"");
  ASSERT_NE(radiator, nullptr);
  EXPECT_EQ(RadiatorText(*radiator),
            L"圆翼型(单排)|计算方法=2|单位=m|实验系数a=0.2|实验系数b=1.2|实验系数c=0.3"
            L"|实验系数d=0.08|单位散热面积=1.8|单位散热量=674.541");
  EXPECT_EQ(radiator->GetParent(), catalogue.m_arrTypes[0]);
}

TEST_F(RadiatorFile, OfTheOldVersionIsSavedInTheNewForm) {
  ASSERT_TRUE(ReadText(Sample("Srq-1.0.idp")));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), Sample("Srq-2.0.idp"));
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  CString mark;
  root.GetValue(mark);
  EXPECT_EQ(mark, L"Version:2.0");
  CIDPEx* type = root.GetSubItem(L"0")->GetSubItem(L"铸铁 \"老\" 散热器");
  ASSERT_NE(type, nullptr);
  EXPECT_EQ(Keys(type), L"M-132型|圆翼型(单排)|");
  EXPECT_FALSE(install.Has(std::string(kFile) + ".rescued-1"));
}

TEST_F(RadiatorFile, HasItsKeysAndValuesInTheOrderOfTheForm) {
  MakeDistinct(*AddRadiator(AddType(L"甲"), L"1"), 0.2);
  AddType(L"乙");
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  EXPECT_EQ(Keys(&root), L"0|1|");
  CString text = L"x";
  EXPECT_TRUE(root.GetSubValue(L"1", text));
  EXPECT_EQ(text, L"");
  EXPECT_EQ(Keys(root.GetSubItem(L"1")), L"乙|");
  int index = -1;
  EXPECT_TRUE(root.GetSubItem(L"1")->GetSubValue(L"乙", index));
  EXPECT_EQ(index, 1);
  CIDPEx* type = root.GetSubItem(L"0")->GetSubItem(L"甲");
  EXPECT_TRUE(type->GetSubValue(L"1", text));
  EXPECT_EQ(text, L"");
  EXPECT_EQ(Keys(type->GetSubItem(L"1")),
            L"计算方法|单位|实验系数a|实验系数b|实验系数c|实验系数d|单位散热面积|单位散热量|");
  EXPECT_EQ(install.Read(kFile).find("\"计算方法\":1,\"单位\":\"\\\"片\\\"\\\\\",\"实验系数a\":3.5"),
            install.Read(kFile).find("\"计算方法\""));
}

TEST_F(RadiatorFile, GivesBackEveryFieldOfEveryRadiator) {
  CZPRadiatorType* first = AddType(L"甲");
  MakeDistinct(*AddRadiator(first, L"1"), 0.2);
  MakeDistinct(*AddRadiator(first, L"2"), 100.3);
  CZPRadiator* odd = AddRadiator(AddType(L"乙"), L"1");
  odd->m_dA = std::numeric_limits<double>::infinity();
  odd->m_dB = std::numeric_limits<double>::quiet_NaN();
  odd->m_dC = -0.0;
  odd->m_dD = std::numeric_limits<double>::denorm_min();
  odd->m_dQs = std::numeric_limits<double>::max();
  odd->m_nFormula = std::numeric_limits<int>::min();
  odd->m_strUnit = L"";
  const CString before = Contents();
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Contents(), before);
}

TEST_F(RadiatorFile, DoesNotHoldTheInputOfACalculation) {
  CZPRadiator* radiator = AddRadiator(AddType(L"甲"), L"1");
  radiator->m_calData.dbQj = 5;
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_calData.dbQj, 1000);
}

TEST_F(RadiatorFile, KeepsNamesOfAnyText) {
  const std::wstring long100(100000, L'长');
  const CString names[] = {L"",
                           L" ",
                           L"0",
                           L"计算方法",
                           L"a\\b/c:d*?\"<>|'%s%n",
                           L"第一行\r\n\t第二行\x01\x1f\x7f",
                           L"\U0001F525\U00020BB7",
                           CString(std::wstring(L"前\0后", 3)),
                           L"\xDC80\xD800",
                           CString(long100)};
  for (const CString& typeName : names) {
    CZPRadiatorType* type = AddType(typeName);
    for (const CString& name : names) AddRadiator(type, name)->m_strUnit = name;
  }
  const CString before = Contents();
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(catalogue.m_arrTypes.GetSize(), static_cast<int>(std::size(names)));
  EXPECT_TRUE(Contents() == before);
}

TEST_F(RadiatorFile, MissingGivesAnEmptyCatalogueWithoutAWord) {
  afx::ClearLoggedMessages();
  EXPECT_FALSE(Reload());
  EXPECT_EQ(Names(), L"");
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(RadiatorFile, OfAnEmptyCatalogueIsReadAsSuch) {
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), "[\"Version:2.0\",{}]\n");
  EXPECT_TRUE(Reload());
  EXPECT_EQ(Names(), L"");
}

TEST_F(RadiatorFile, ReplacesWhatTheCatalogueHeldBefore) {
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}]}])"));
  AddType(L"乙");
  ASSERT_TRUE(Read());
  EXPECT_EQ(Names(), L"甲(1)");
}

TEST_F(RadiatorFile, OfAnotherVersionLoadsNothingAndIsReplacedWithACopyKept) {
  for (const char* mark :
       {"\"\"", "\"Version:3.0\"", "\"Version:2.0 \"", "\"2.0\"", "2.0", "0", "\"version:2.0\""}) {
    const TempInstall own;
    std::string text("[");
    text += mark;
    text += R"(,{"0":["",{"甲":[0,{"1":""}]}]}])";
    own.Write(kFile, text);
    EXPECT_TRUE(Reload()) << mark;
    EXPECT_EQ(Names(), L"") << mark;
    EXPECT_TRUE(catalogue.SaveData()) << mark;
    EXPECT_EQ(own.Read(kFile), "[\"Version:2.0\",{}]\n") << mark;
    EXPECT_EQ(own.Read(std::string(kFile) + ".rescued-1"), text) << mark;
  }
}

TEST_F(RadiatorFile, OfAnotherVersionLeavesTheCatalogueAsItWas) {
  AddType(L"乙");
  install.Write(kFile, R"(["Version:3.0",{}])");
  EXPECT_TRUE(Read());
  EXPECT_EQ(Names(), L"乙()");
}

TEST_F(RadiatorFile, WithTheMarkAsAKeyIsOfAnotherVersion) {
  EXPECT_TRUE(ReadText(R"(["",{"Version":"2.0","0":["",{"甲":[0,{"1":""}]}]}])"));
  EXPECT_EQ(Names(), L"");
}

TEST_F(RadiatorFile, LeavesEachFieldThatItLacksAtItsDefault) {
  for (const RadiatorField& lacking : kRadiatorFields) {
    CIDPEx root;
    root.SetValue(L"Version:2.0");
    root.SetSubValue(L"0", L"");
    root.GetSubItem(L"0")->SetSubValue(L"甲", 0);
    root.GetSubItem(L"0")->GetSubItem(L"甲")->SetSubValue(L"1", L"");
    CIDPEx* fields = root.GetSubItem(L"0")->GetSubItem(L"甲")->GetSubItem(L"1");
    CZPRadiator expected;
    MakeDistinct(expected, 5.5);
    expected.SetName(L"1");
    const CZPRadiator defaults;
    for (const RadiatorField& field : kRadiatorFields) {
      const bool isLacking = &field == &lacking;
      std::visit(
          [&](auto member) {
            if (isLacking)
              expected.*member = defaults.*member;
            else
              fields->SetSubValue(field.key, expected.*member);
          },
          field.member);
    }
    ASSERT_TRUE(root.Save(Path()));
    ASSERT_TRUE(Reload());
    EXPECT_EQ(RadiatorText(*catalogue.GetInitialRadiator()), RadiatorText(expected));
  }
}

TEST_F(RadiatorFile, WithoutUnitAndFormulaGivesSectionsAndTheExponentLaw) {
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":["",{"单位散热量":5.0}]}]}]}])"));
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_strUnit, L"片");
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_nFormula, 0);
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_dQs, 5);
}

TEST_F(RadiatorFile, WithValuesOfAnotherTypeIsReadAsFarAsTheyMeanSomething) {
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":["x",{"1":[7,{
    "计算方法":"2","单位":5,"实验系数a":"0.5x","实验系数b":"abc","实验系数c":["1.5",{"下":1}],"实验系数d":1,
    "单位散热面积":"","单位散热量":{"double":"inf"},"别的":1}]}]}]}])"));
  EXPECT_EQ(RadiatorText(*catalogue.GetInitialRadiator()),
            L"1|计算方法=2|单位=5|实验系数a=0.5|实验系数b=0.0|实验系数c=1.5|实验系数d=1.0|单位散热面积=0.0"
            L"|单位散热量=inf");
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":["",{"计算方法":{"double":"nan"}}],
    "2":["",{"计算方法":1.9}],"3":["",{"计算方法":1e300}]}]}]}])"));
  EXPECT_EQ(catalogue.GetRadiator(L"1", L"")->m_nFormula, 0);
  EXPECT_EQ(catalogue.GetRadiator(L"2", L"")->m_nFormula, 1);
  EXPECT_EQ(catalogue.GetRadiator(L"3", L"")->m_nFormula, 2147483647);
}

TEST_F(RadiatorFile, TakesEntriesInTheirOrderWhateverTheirKeysAre) {
  ASSERT_TRUE(ReadText(
      R"(["Version:2.0",{"7":["",{"后":[0,{}]}],"":["",{"先":[0,{}]}],"名":["",{"末":0,"不取":[0,{"1":""}]}]}])"));
  EXPECT_EQ(Names(), L"后() 先() 末()");
  ASSERT_TRUE(
      ReadText(R"(["Version:1.0",{"0":["",{"甲":[0,{"9":["",{"后":""}],"3":["",{"先":"","不取":""}]}]}]}])"));
  EXPECT_EQ(Names(), L"甲(后 先)");
}

TEST_F(RadiatorFile, IsSavedByTheOrderOfTheCatalogueAndPassesOverNullElements) {
  AddType(L"甲");
  catalogue.m_arrTypes.Add(nullptr);
  CZPRadiatorType* type = AddType(L"乙");
  type->m_arrRadiators.Add(nullptr);
  AddRadiator(type, L"1");
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Names(), L"甲() 乙(1)");
}

TEST_F(RadiatorFile, LosesWhatWasRemovedAndWhatIsNotItsOwn) {
  ASSERT_TRUE(ReadText(R"(["Version:2.0",{"0":["",{"甲":[0,{"1":["",{"别的":1}]}]}],"1":["",{"乙":1}]}])"));
  ASSERT_TRUE(catalogue.Remove(catalogue.GetRadiatorType(L"乙")));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile).find("别的"), std::string::npos);
  EXPECT_EQ(install.Read(kFile).find("乙"), std::string::npos);
}

TEST_F(RadiatorFile, HoldsRadiatorsThatWereRenamedAlikeAsTheLastOfThem) {
  CZPRadiatorType* type = AddType(L"甲");
  AddRadiator(type, L"1")->m_dA = 1;
  CZPRadiator* second = AddRadiator(type, L"2");
  second->m_dA = 2;
  second->SetName(L"1");
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Names(), L"甲(1)");
  EXPECT_EQ(catalogue.GetInitialRadiator()->m_dA, 2);
}

TEST_F(RadiatorFile, IsDocumentedFieldByField) {
  std::ifstream file(std::string(ZP_SOURCE_DIR) + "/docs/formats/srq.md");
  const std::string document{std::istreambuf_iterator<char>(file), {}};
  const char* const types[] = {"integer", "text", "double"}; // in the order of the field's variant
  const CZPRadiator defaults;
  for (const RadiatorField& field : kRadiatorFields) {
    std::string row("| `");
    row += CString(field.key).ToUtf8() + "` | " + types[field.member.index()] + " | ";
    row += std::visit([&](auto member) { return FieldText(defaults.*member).ToUtf8(); }, field.member) + " |";
    EXPECT_NE(document.find(row), std::string::npos) << row;
  }
}

TEST_F(RadiatorFile, OfManyRadiatorsIsReadAndSaved) {
  CIDPEx root;
  root.SetValue(L"Version:1.0");
  root.SetSubValue(L"0", L"");
  root.GetSubItem(L"0")->SetSubValue(L"甲", 0);
  CIDPEx* type = root.GetSubItem(L"0")->GetSubItem(L"甲");
  constexpr int kCount = 30000;
  for (int i = 0; i < kCount; ++i) {
    const CString key = FieldText(i);
    type->SetSubValue(key, i);
    type->GetSubItem(key)->SetSubValue(L"型号" + key, L"");
  }
  ASSERT_TRUE(root.Save(Path()));
  ASSERT_TRUE(Reload());
  ASSERT_EQ(catalogue.m_arrTypes[0]->m_arrRadiators.GetSize(), kCount);
  EXPECT_EQ(catalogue.m_arrTypes[0]->m_arrRadiators[kCount - 1]->GetName(), L"型号29999");
  ASSERT_TRUE(catalogue.SaveData());
}

} // namespace
