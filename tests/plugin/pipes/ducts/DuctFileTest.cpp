// The duct half of PipeMaterial.idp: what is written, and what is made of whole and of incomplete files.
#include <algorithm>

#include "host/afx/Numbers.h"
#include "plugin/pipes/ducts/DuctFields.h"
#include "tests/plugin/pipes/ducts/DuctFixture.h"
#include "tests/support/AwkwardNames.h"

namespace {

class DuctFile : public DuctFixture {
 protected:
  // A value of each field that no other field and no default has, and no short decimal: full precision must
  // survive.
  void AddDistinct(const CString& name) {
    auto* material = new CZPDuctMaterial;
    material->SetName(name);
    for (const DuctMaterialField& field : kDuctMaterialFields) material->*field.member = Next();
    for (int i = 0; i < 3; ++i) {
      SZPDuctThickness row;
      for (const DuctThicknessField& field : kDuctThicknessFields) row.*field.member = Next();
      material->m_arrThickness.Add(row);
    }
    catalogue.m_arrMaterials.Add(material);
    for (auto* list : {&catalogue.m_arrRectDiameters, &catalogue.m_arrCircleDiameters}) {
      auto* size = new CZPDuctDiameter;
      for (const DuctSizeField& field : kDuctSizeFields) size->*field.member = Next();
      list->Add(size);
    }
  }
  double Next() { return m_next += 1.1; }

  // All that the catalogue holds, field by field.
  CString Everything() const {
    CString all;
    const auto put = [&](const auto& record, const auto& fields) {
      for (const auto& field : fields)
        all +=
            CString(field.key) + L"=" + CString::FromUtf8(afx::ShortestDouble(record.*field.member)) + L" ";
    };
    for (const CZPDuctMaterial* material : catalogue.m_arrMaterials) {
      all += L"\n" + material->GetName() + L": ";
      put(*material, kDuctMaterialFields);
      for (const SZPDuctThickness& row : material->m_arrThickness) put(row, kDuctThicknessFields);
    }
    for (const auto* list : {&catalogue.m_arrRectDiameters, &catalogue.m_arrCircleDiameters}) {
      all += L"\nsizes: ";
      for (const CZPDuctDiameter* size : *list) put(*size, kDuctSizeFields);
    }
    return all;
  }

 private:
  double m_next = 0.1;
};

TEST_F(DuctFile, GivesBackEveryFieldOfEverything) {
  AddDistinct(L"甲");
  AddDistinct(L"乙");
  const CString before = Everything();
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Everything(), before);
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(DuctFile, IsWrittenInTheOrderOfTheSchema) {
  CZPDuctMaterial* material = AddNamed(L"镀锌钢板");
  material->m_dRoughness = 0.15;
  SZPDuctThickness low(0, 320, 0.5);
  SZPDuctThickness high(320, 450, 0.6);
  material->m_arrThickness.Add(low);
  material->m_arrThickness.Add(high);
  AddRect(500, 250);
  AddRect(120, 120);
  AddCircle(100);
  ASSERT_TRUE(catalogue.SaveData());
  std::string text = install.Read(kFile);
  text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
  EXPECT_EQ(
      text,
      R"(["",{"Version":"1.0",)"
      R"("风管管材方案":["",{"0":[0,{"镀锌钢板":["",{)"
      R"("壁厚数据":["",{"0":[0,{"最小值":0.0,"最大值":320.0,"壁厚":0.5}],)"
      R"("1":[1,{"最小值":320.0,"最大值":450.0,"壁厚":0.6}]}],"绝对粗糙度":0.15}]}]}],)"
      R"("风管管径方案":["",{)"
      R"("矩形风管管径方案":["",{"0":[0,{"宽度":120.0,"高度":120.0}],"1":[1,{"宽度":500.0,"高度":250.0}]}],)"
      R"("圆形风管管径方案":["",{"0":[0,{"宽度":100.0,"高度":0.0}]}]}]}])");
}

TEST_F(DuctFile, SavedUnchangedAfterReadingIsTheSameByteForByte) {
  AddDistinct(L"甲");
  AddDistinct(L"乙 \"2\"");
  ASSERT_TRUE(catalogue.SaveData());
  const std::string before = install.Read(kFile);
  ASSERT_TRUE(Reload());
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile), before);
}

TEST_F(DuctFile, KeepsNamesOfAnyCharacters) {
  for (const CString& name : AwkwardNames()) AddNamed(name);
  ASSERT_TRUE(catalogue.SaveData());
  ASSERT_TRUE(Reload());
  const auto names = AwkwardNames();
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), static_cast<int>(names.size()));
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(catalogue.m_arrMaterials[static_cast<int>(i)]->GetName(), names[i]) << i;
}

TEST_F(DuctFile, OfAnEmptyCatalogueHoldsItsSectionsAndReadsBackEmpty) {
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_TRUE(Reload());
  EXPECT_TRUE(IsEmpty());
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(DuctFile, MissingGivesAnEmptyCatalogueWithoutAWord) {
  EXPECT_FALSE(Reload());
  EXPECT_TRUE(IsEmpty());
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(DuctFile, LeavesWhatIsInTheCatalogueWhenItCannotBeRead) {
  AddNamed(L"甲");
  EXPECT_FALSE(catalogue.ReadData());
  EXPECT_EQ(Names(), L"甲");
}

TEST_F(DuctFile, IsReadBehindWhatIsInTheCatalogue) {
  AddNamed(L"甲");
  AddRect(300, 1);
  ASSERT_TRUE(catalogue.SaveData());
  AddRect(100, 2);
  EXPECT_TRUE(catalogue.ReadData());
  EXPECT_EQ(Names(), L"甲 甲"); // without a check of names
  EXPECT_EQ(Rects(), L"100x2 300x1 300x1");
}

TEST_F(DuctFile, ThatOnlyThePipesHaveWrittenIsAnEmptyCatalogueWithoutAWord) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","管材管径方案":["",{"0":0}]}])"));
  EXPECT_TRUE(IsEmpty());
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(DuctFile, OfAnotherVersionIsNotReadAndItsOtherKeysOutliveTheNextSave) {
  for (const char* version : {R"("Version":"2.0",)", R"("Version":"",)", R"("Version":1.0,)", ""}) {
    SCOPED_TRACE(version);
    const std::string text =
        std::string(R"(["",{)") + version +
        R"("管材管径方案":["x",{"0":7}],"别的":5,"风管管材方案":["",{"0":[0,{"旧":["",)" +
        R"({"壁厚数据":""}]}]}]}])";
    EXPECT_FALSE(ReadText(text));
    EXPECT_TRUE(IsEmpty());
    EXPECT_TRUE(IsLogged(L"版本标记"));
    AddNamed(L"新");
    ASSERT_TRUE(catalogue.SaveData());
    CIDPEx root;
    ASSERT_TRUE(root.Open(Path()));
    int other = 0;
    EXPECT_TRUE(root.GetSubValue(L"别的", other));
    EXPECT_EQ(other, 5);
    EXPECT_NE(root.GetSubItem(L"管材管径方案")->GetSubItem(L"0"), nullptr);
    EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
    EXPECT_TRUE(Reload());
    EXPECT_EQ(Names(), L"新");
    std::filesystem::remove(install.Root() / (std::string(kFile) + ".rescued-1"));
  }
}

TEST_F(DuctFile, WithMaterialsButWithoutSizesGivesTheMaterialsAndFails) {
  EXPECT_FALSE(
      ReadText(R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":""}]}]}]}])"));
  EXPECT_EQ(Names(), L"甲");
  EXPECT_TRUE(catalogue.m_arrRectDiameters.IsEmpty());
  EXPECT_TRUE(IsLogged(L"风管管径方案：缺少此段"));
}

TEST_F(DuctFile, WithoutTheSectionOfMaterialsGivesNoSizesEitherAndKeepsACopy) {
  const std::string text =
      R"(["",{"Version":"1.0","风管管径方案":["",{"矩形风管管径方案":["",{"0":[0,{"宽度":5.0}]}],"圆形风管管径方案":""}]}])";
  EXPECT_FALSE(ReadText(text));
  EXPECT_TRUE(IsEmpty());
  EXPECT_TRUE(IsLogged(L"风管管材方案：缺少此段"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DuctFile, WithoutTheListOfRectangularSizesGivesNoRoundOnesEitherAndKeepsACopy) {
  const std::string text =
      R"(["",{"Version":"1.0","风管管材方案":"","风管管径方案":["",{"圆形风管管径方案":["",{"0":[0,{"宽度":5.0}]}]}]}])";
  EXPECT_FALSE(ReadText(text));
  EXPECT_TRUE(IsEmpty());
  EXPECT_TRUE(IsLogged(L"矩形风管管径方案：缺少此段"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DuctFile, WithoutEitherListOfSizesFailsWithNothingToKeep) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","风管管材方案":"","风管管径方案":""}])"));
  EXPECT_TRUE(IsLogged(L"矩形风管管径方案：缺少此段"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_FALSE(install.Has(std::string(kFile) + ".rescued-1"));
}

TEST_F(DuctFile, WithoutTheListOfRoundSizesGivesTheRectangularOnesAndFails) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","风管管材方案":"",
      "风管管径方案":["",{"矩形风管管径方案":["",{"0":[0,{"宽度":500.0,"高度":250.0}]}]}]}])"));
  EXPECT_EQ(Rects(), L"500x250");
  EXPECT_TRUE(IsLogged(L"圆形风管管径方案：缺少此段"));
}

TEST_F(DuctFile, SkipsRecordsWithoutAMaterialAndThoseWithoutATableButKeepsACopyOfTheLatter) {
  const std::string text = R"(["",{"Version":"1.0","风管管材方案":["",{"0":0,"1":[1,{}],
      "2":[2,{"无表":["",{"绝对粗糙度":0.5}]}],"3":[3,{"甲":["",{"壁厚数据":""}]}]}],
      "风管管径方案":["",{"矩形风管管径方案":"","圆形风管管径方案":""}]}])";
  EXPECT_TRUE(ReadText(text));
  EXPECT_EQ(Names(), L"甲");
  EXPECT_TRUE(IsLogged(L"风管管材方案\\2\\无表：缺少壁厚数据"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DuctFile, TakesTheFirstOfSeveralNamesUnderOneIndex) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":""}],
                           "乙":["",{"壁厚数据":""}]}]}]}])"));
  EXPECT_EQ(Names(), L"甲");
}

TEST_F(DuctFile, LeavesFieldsThatItLacksAtTheirDefaults) {
  EXPECT_TRUE(ReadText(R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":["",
      {"0":0,"别的":1,"2":[2,{"最大值":320.0}]}]}]}]}],
      "风管管径方案":["",{"矩形风管管径方案":["",{"0":[0,{"宽度":5.0}],"1":[1,{"高度":7.0}],"2":[2,{"别的":1}]}],
      "圆形风管管径方案":["",{"0":[0,{"高度":3.0}]}]}]}])"));
  ASSERT_EQ(catalogue.m_arrMaterials.GetSize(), 1);
  const CZPDuctMaterial& material = *catalogue.m_arrMaterials[0];
  EXPECT_EQ(material.m_dRoughness, 0.02);
  ASSERT_EQ(material.m_arrThickness.GetSize(), 3); // as many as there are keys; "1" is not among them
  for (const int i : {0, 1}) {
    EXPECT_EQ(material.m_arrThickness[i].dbMax, 0);
    EXPECT_EQ(material.m_arrThickness[i].dbThickness, 0);
  }
  EXPECT_EQ(material.m_arrThickness[2].dbMin, 0);
  EXPECT_EQ(material.m_arrThickness[2].dbMax, 320);
  EXPECT_EQ(Rects(), L"0x7 0x0 5x0");
  EXPECT_EQ(Circles(), L"0x3");
}

TEST_F(DuctFile, ConvertsValuesOfAnotherType) {
  EXPECT_TRUE(ReadText(R"(["",{"Version":"1.0","风管管材方案":["x",{"0":["x",{"甲":[1.5,{"壁厚数据":[3,
      {"0":["x",{"最小值":"12mm","最大值":320,"壁厚":"无"}]}],"绝对粗糙度":"0.15"}]}]}],
      "风管管径方案":[1,{"矩形风管管径方案":[1,{"0":["",{"宽度":500,"高度":{"double":"inf"}}]}],
      "圆形风管管径方案":[1,{"0":["",{"宽度":"100"}],"1":[1,{"宽度":{"double":"nan"}}]}]}]}])"));
  const CZPDuctMaterial& material = *catalogue.m_arrMaterials[0];
  EXPECT_EQ(material.m_dRoughness, 0.15);
  EXPECT_EQ(material.m_arrThickness[0].dbMin, 12);
  EXPECT_EQ(material.m_arrThickness[0].dbMax, 320);
  EXPECT_EQ(material.m_arrThickness[0].dbThickness, 0);
  EXPECT_EQ(Rects(), L"500xinf");
  EXPECT_EQ(Circles(), L"nanx0 100x0");
}

TEST_F(DuctFile, MayHoldANameTwice) {
  EXPECT_FALSE(ReadText(R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":""}]}],
                           "1":[1,{"甲":["",{"壁厚数据":""}]}]}]}])"));
  EXPECT_EQ(Names(), L"甲 甲");
}

TEST_F(DuctFile, NeedsNoOrderOfItsSizesAndLosesRoundOnesThatRepeatAfterKeepingACopy) {
  const std::string text = R"(["",{"Version":"1.0","风管管材方案":"","风管管径方案":["",
      {"矩形风管管径方案":["",{"0":[0,{"宽度":500.0,"高度":320.0}],"1":[1,{"宽度":120.0,"高度":120.0}],
       "2":[2,{"宽度":500.0,"高度":250.0}]}],
       "圆形风管管径方案":["",{"0":[0,{"宽度":200.0,"高度":1.0}],"1":1,"2":[2,{"宽度":100.0}],
       "3":[3,{"宽度":200.0,"高度":2.0}]}]}]}])";
  EXPECT_TRUE(ReadText(text));
  EXPECT_EQ(Rects(), L"120x120 500x320 500x250");
  EXPECT_EQ(Circles(), L"100x0 200x1");
  EXPECT_TRUE(IsLogged(L"圆形风管管径方案\\3：规格重复"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DuctFile, ReadAgainLeavesTheRoundSizesThatAreThereAlready) {
  CZPDuctDiameter* first = AddCircle(200);
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_TRUE(catalogue.ReadData());
  ASSERT_EQ(catalogue.m_arrCircleDiameters.GetSize(), 1);
  EXPECT_EQ(catalogue.m_arrCircleDiameters[0], first);
}

TEST_F(DuctFile, WithNumbersLeftOutKeepsACopyOfWhatIsNotReached) {
  const std::string text = R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":""}]}],
      "7":[7,{"乙":["",{"壁厚数据":""}]}]}],"风管管径方案":["",{"矩形风管管径方案":["",{"1":[1,{"宽度":5.0}],
      "5":[5,{"宽度":6.0}]}],"圆形风管管径方案":""}]}])";
  EXPECT_TRUE(ReadText(text));
  EXPECT_EQ(Names(), L"甲");
  EXPECT_EQ(Rects(), L"5x0");
  EXPECT_TRUE(IsLogged(L"风管管材方案：编号不连续"));
  EXPECT_TRUE(IsLogged(L"矩形风管管径方案：编号不连续"));
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(std::string(kFile) + ".rescued-1"), text);
}

TEST_F(DuctFile, LeavesTheIndexOfANullElementWithoutAnythingBelowIt) {
  catalogue.m_arrMaterials.Add(nullptr);
  AddNamed(L"甲");
  AddRect(500, 250);
  catalogue.m_arrRectDiameters.Add(nullptr);
  catalogue.m_arrCircleDiameters.Add(nullptr);
  ASSERT_TRUE(catalogue.SaveData());
  CIDPEx root;
  ASSERT_TRUE(root.Open(Path()));
  EXPECT_TRUE(root.GetSubItem(kDuctMaterialSection)->GetSubItem(L"0")->SubKeyNames.IsEmpty());
  EXPECT_TRUE(
      root.GetSubItem(kDuctSizeSection)->GetSubItem(kRectSizes)->GetSubItem(L"1")->SubKeyNames.IsEmpty());
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Names(), L"甲");
  EXPECT_EQ(Rects(), L"500x250");
  EXPECT_EQ(Circles(), L"");
  EXPECT_TRUE(afx::LoggedMessages().empty());
}

TEST_F(DuctFile, LosesWhatWasRemovedAndWhatIsUnknownInItsSections) {
  EXPECT_TRUE(
      ReadText(R"(["",{"Version":"1.0","风管管材方案":["",{"0":[0,{"甲":["",{"壁厚数据":"","别的":1}]}],
      "1":[1,{"乙":["",{"壁厚数据":""}]}]}],"风管管径方案":["",{"别的":1,"矩形风管管径方案":["",{"0":[0,{"宽度":5.0}]}],
      "圆形风管管径方案":""}]}])"));
  catalogue.Remove(catalogue.GetDuctMaterial(L"乙"));
  catalogue.RemoveRectDuctDiameter(catalogue.m_arrRectDiameters[0]);
  ASSERT_TRUE(catalogue.SaveData());
  EXPECT_EQ(install.Read(kFile).find("别的"), std::string::npos);
  ASSERT_TRUE(Reload());
  EXPECT_EQ(Names(), L"甲");
  EXPECT_EQ(Rects(), L"");
}

} // namespace
