// The values of mains and risers, one by one and as a new pipe begins.
#include <type_traits>

#include "tests/plugin/pipes/attributes/PipeFixture.h"

namespace {

using PipeAttributes = PipeFixture;

struct NumberAttribute {
  const wchar_t* key;
  bool (*set)(const AcDbObjectId&, double);
  bool (*get)(const AcDbObjectId&, double&);
};

template <typename Pipe, auto Set> bool SetOf(const AcDbObjectId& id, double value) {
  return (Pipe(id).*Set)(value);
}
template <typename Pipe, auto Get> bool GetOf(const AcDbObjectId& id, double& value) {
  return (Pipe(id).*Get)(value);
}
template <typename Pipe, auto Set, auto Get> constexpr NumberAttribute Number(const wchar_t* key) {
  return {key, SetOf<Pipe, Set>, GetOf<Pipe, Get>};
}

constexpr NumberAttribute kNumbers[] = {
    Number<CZPMainPipe, &CZPMainPipe::SetDN, &CZPMainPipe::GetDN>(L"管径"),
    Number<CZPMainPipe, &CZPMainPipe::SetFlowRate, &CZPMainPipe::GetFlowRate>(L"流量"),
    Number<CZPMainPipe, &CZPMainPipe::SetFlowVelocity, &CZPMainPipe::GetFlowVelocity>(L"流速"),
    Number<CZPMainPipe, &CZPMainPipe::SetBMZ, &CZPMainPipe::GetBMZ>(L"比摩阻"),
    Number<CZPMainPipe, &CZPMainPipe::SetYcZl, &CZPMainPipe::GetYcZl>(L"沿程阻力"),
    Number<CZPMainPipe, &CZPMainPipe::SetLength, &CZPMainPipe::GetLength>(L"长度"),
    Number<CZPMainPipe, &CZPMainPipe::SetElevation, &CZPMainPipe::GetElevation>(L"相对标高"),
    Number<CZPRiserPipe, &CZPRiserPipe::SetStartElevation, &CZPRiserPipe::GetStartElevation>(L"始点标高"),
    Number<CZPRiserPipe, &CZPRiserPipe::SetEndElevation, &CZPRiserPipe::GetEndElevation>(L"终点标高"),
};

TEST_F(PipeAttributes, StandUnderTheirKeysAsTextsOfAtMostFiveDecimals) {
  for (const NumberAttribute& attribute : kNumbers) {
    SCOPED_TRACE(CString(attribute.key).ToUtf8());
    const std::pair<double, const wchar_t*> cases[] = {
        {20.0, L"20"}, {0.123456, L"0.12346"}, {-3.5, L"-3.5"}, {0, L"0"}, {1234567.000004, L"1234567"}};
    for (const auto& [value, text] : cases) {
      EXPECT_TRUE(attribute.set(line, value));
      EXPECT_EQ(Stored(attribute.key), text);
      double read = -1;
      EXPECT_TRUE(attribute.get(line, read));
      EXPECT_NEAR(read, value, 5.1e-6);
    }
  }
}

TEST_F(PipeAttributes, AreIndependentOfEachOther) {
  double value = 0;
  for (const NumberAttribute& attribute : kNumbers) EXPECT_TRUE(attribute.set(line, value += 1.5));
  value = 0;
  for (const NumberAttribute& attribute : kNumbers) {
    double read = -1;
    EXPECT_TRUE(attribute.get(line, read));
    EXPECT_EQ(read, value += 1.5) << CString(attribute.key).ToUtf8();
  }
}

TEST_F(PipeAttributes, ThatAreMissingLeaveTheArgumentAsItWas) {
  for (const NumberAttribute& attribute : kNumbers) {
    if (CString(attribute.key) == L"长度") continue; // measured
    double read = 7;
    EXPECT_FALSE(attribute.get(line, read)) << CString(attribute.key).ToUtf8();
    EXPECT_EQ(read, 7);
  }
  CString text = L"before";
  EXPECT_FALSE(CZPMainPipe(line).GetMaterial(text));
  EXPECT_FALSE(CZPRiserPipe(line).GetPreLable(text));
  EXPECT_EQ(text, L"before");
  int code = 7;
  EXPECT_FALSE(CZPRiserPipe(line).GetCode(code));
  EXPECT_EQ(code, 7);
}

TEST_F(PipeAttributes, ThatAreNoNumbersReadAsWhatTheTextBeginsWith) {
  for (const NumberAttribute& attribute : kNumbers) {
    const std::pair<const wchar_t*, double> cases[] = {
        {L"DN25", 0}, {L"25mm", 25}, {L"", 0}, {L" 1.5e1", 15}, {L"nan", 0}};
    for (const auto& [text, number] : cases) {
      ZP::SetXdata(line, attribute.key, text);
      double read = 7;
      EXPECT_TRUE(attribute.get(line, read));
      EXPECT_EQ(read, number) << CString(text).ToUtf8();
    }
  }
  const std::pair<const wchar_t*, int> codes[] = {
      {L"12.9", 12}, {L"L-3", 0}, {L"-4x", -4}, {L"99999999999", 2147483647}};
  for (const auto& [text, number] : codes) {
    ZP::SetXdata(line, L"编号", text);
    int code = 7;
    EXPECT_TRUE(CZPRiserPipe(line).GetCode(code));
    EXPECT_EQ(code, number) << CString(text).ToUtf8();
  }
}

TEST_F(PipeAttributes, OfTextStandAsTheyAre) {
  CZPRiserPipe pipe(line);
  const CString values[] = {L"镀锌钢管(普通)", L"",           L" 前后有空格 ",
                            L"“引号”\"%s",     L"\U0001F600", CString(std::wstring(600, L'长'))};
  for (const CString& value : values) {
    EXPECT_TRUE(pipe.SetMaterial(value));
    EXPECT_TRUE(pipe.SetPreLable(value));
    EXPECT_EQ(Stored(L"管材"), value);
    CString material = L"(none)";
    CString prefix = L"(none)";
    EXPECT_TRUE(pipe.GetMaterial(material));
    EXPECT_TRUE(pipe.GetPreLable(prefix));
    EXPECT_EQ(material, value);
    EXPECT_EQ(prefix, value);
  }
}

TEST_F(PipeAttributes, KeepARiserNumberAsAnInteger) {
  CZPRiserPipe pipe(line);
  for (const int number : {0, 12, -3, 2147483647}) {
    EXPECT_TRUE(pipe.SetCode(number));
    int read = 7;
    EXPECT_TRUE(pipe.GetCode(read));
    EXPECT_EQ(read, number);
  }
  EXPECT_EQ(Stored(L"编号"), L"2147483647");
}

TEST_F(PipeAttributes, AreRefusedAndMissingWithoutAnEntity) {
  const AcDbObjectId erased = drawing.AppendLine();
  CZPMainPipe(erased).SetDN(20);
  Erase(erased);
  for (const AcDbObjectId& id : {AcDbObjectId::kNull, erased}) {
    for (const NumberAttribute& attribute : kNumbers) {
      double read = 7;
      EXPECT_FALSE(attribute.set(id, 1));
      EXPECT_FALSE(attribute.get(id, read));
      EXPECT_EQ(read, 7);
    }
    CZPRiserPipe pipe(id);
    EXPECT_FALSE(pipe.SetMaterial(L"x"));
    EXPECT_FALSE(pipe.SetCode(1));
    EXPECT_FALSE(pipe.SetPreLable(L"x"));
    pipe.InitEntityXdata(); // without a word
  }
}

TEST_F(PipeAttributes, AreWrittenToAnEntityThatSomebodyReadsOnlyAfterwards) {
  const AcDbObjectPointer<AcDbEntity> reader(line, AcDb::kForRead);
  EXPECT_FALSE(CZPMainPipe(line).SetDN(20));
  double dn = 7;
  EXPECT_FALSE(CZPMainPipe(line).GetDN(dn)); // readable, but not there
}

TEST_F(PipeAttributes, OfANewMainAreTheseAndNoLength) {
  CZPMainPipe(line).InitEntityXdata();
  EXPECT_EQ(Stored(L"管径"), L"20");
  for (const wchar_t* key : {L"流量", L"流速", L"比摩阻", L"沿程阻力", L"相对标高"})
    EXPECT_EQ(Stored(key), L"0") << CString(key).ToUtf8();
  for (const wchar_t* key : {L"长度", L"始点标高", L"终点标高", L"编号", L"编号前缀"})
    EXPECT_EQ(Stored(key), L"(none)") << CString(key).ToUtf8();
}

TEST_F(PipeAttributes, OfANewRiserAreTheseAndNoLength) {
  CZPRiserPipe(line).InitEntityXdata();
  EXPECT_EQ(Stored(L"管径"), L"20");
  for (const wchar_t* key : {L"流量", L"流速", L"比摩阻", L"沿程阻力", L"始点标高", L"终点标高", L"编号"})
    EXPECT_EQ(Stored(key), L"0") << CString(key).ToUtf8();
  EXPECT_EQ(Stored(L"编号前缀"), L"");
  for (const wchar_t* key : {L"长度", L"相对标高"})
    EXPECT_EQ(Stored(key), L"(none)") << CString(key).ToUtf8();
}

TEST_F(PipeAttributes, OfANewPipeHaveTheFirstMaterialOfTheCatalogue) {
  CZPMainPipe(line).InitEntityXdata();
  EXPECT_EQ(Stored(L"管材"), L"镀锌钢管"); // of an empty catalogue
  Catalogue({L"紫铜管", L"PE-X管"});
  CZPMainPipe(line).InitEntityXdata();
  EXPECT_EQ(Stored(L"管材"), L"紫铜管");
  const AcDbObjectId riser = drawing.AppendLine();
  CZPRiserPipe(riser).InitEntityXdata();
  EXPECT_EQ(Stored(riser, L"管材"), L"紫铜管");
  Catalogue({L""}); // a material that has no name yet
  CZPMainPipe(line).InitEntityXdata();
  EXPECT_EQ(Stored(L"管材"), L"");
}

// As a sibling plug-in derives it.
class CountingRiser : public CZPRiserPipe {
 public:
  using CZPRiserPipe::CZPRiserPipe;
  bool SetCode(int code) override {
    ++codes;
    return CZPRiserPipe::SetCode(code + 100);
  }
  bool SetPreLable(const CString& text) override {
    ++prefixes;
    return CZPRiserPipe::SetPreLable(text + L"L");
  }
  int codes = 0;
  int prefixes = 0;
};

TEST_F(PipeAttributes, OfANewRiserGoThroughTheSettersOfADerivedKind) {
  CountingRiser riser(line);
  riser.InitEntityXdata();
  EXPECT_EQ(riser.codes, 1);
  EXPECT_EQ(riser.prefixes, 1);
  EXPECT_EQ(Stored(L"编号"), L"100");
  EXPECT_EQ(Stored(L"编号前缀"), L"L");
}

TEST_F(PipeAttributes, AreThoseOfTheEntityThatIsAttached) {
  const AcDbObjectId other = drawing.AppendLine();
  CZPMainPipe pipe(line);
  pipe.SetDN(25);
  CZPMainPipe copy(pipe);
  pipe.AttachEntityId(other);
  pipe.SetDN(50);
  EXPECT_EQ(Stored(line, L"管径"), L"25");
  EXPECT_EQ(Stored(other, L"管径"), L"50");
  double dn = 0;
  EXPECT_TRUE(copy.GetDN(dn));
  EXPECT_EQ(dn, 25);
  copy = pipe;
  EXPECT_TRUE(copy.GetDN(dn));
  EXPECT_EQ(dn, 50);
}

TEST_F(PipeAttributes, AreReachedThroughTheBaseOfBothKinds) {
  static_assert(std::is_abstract_v<CZPPipe> && std::has_virtual_destructor_v<CZPPipe>);
  CZPMainPipe main(line);
  CZPRiserPipe riser(drawing.AppendLine());
  for (CZPPipe* pipe : {static_cast<CZPPipe*>(&main), static_cast<CZPPipe*>(&riser)}) {
    pipe->InitEntityXdata();
    double dn = 0;
    EXPECT_TRUE(pipe->GetDN(dn));
    EXPECT_EQ(dn, 20);
  }
}

} // namespace
