#include <cstring>

#include <gtest/gtest.h>

#include "plugin/radiators/CZPRadiatorManager.h"
#include "tests/plugin/radiators/RadiatorText.h"

namespace {

TEST(Radiator, StartsWithTheDefaultsOfACataloguesRecord) {
  const CZPRadiator radiator;
  EXPECT_EQ(RadiatorText(radiator), L"|计算方法=0|单位=片|实验系数a=0.2|实验系数b=1.2|实验系数c=0.3"
                                    L"|实验系数d=0.08|单位散热面积=0.0|单位散热量=80.0");
  EXPECT_EQ(radiator.GetParent(), nullptr);
}

TEST(Radiator, StartsWithTheDefaultInputOfACalculation) {
  const CZPRadiator radiator;
  const double SZPRadCalData::*const members[] = {
      &SZPRadCalData::dbQj,    &SZPRadCalData::dbTg,    &SZPRadCalData::dbTh,    &SZPRadCalData::dbTn,
      &SZPRadCalData::dbBeta1, &SZPRadCalData::dbBeta2, &SZPRadCalData::dbBeta3, &SZPRadCalData::dbBeta4};
  const double expected[] = {1000, 80, 60, 18, 1, 1, 1, 1};
  static_assert(sizeof(SZPRadCalData) == sizeof expected);
  for (std::size_t i = 0; i < std::size(members); ++i) {
    EXPECT_EQ(radiator.m_calData.*members[i], expected[i]) << i;
    EXPECT_EQ(&(radiator.m_calData.*members[i]) - &radiator.m_calData.dbQj, static_cast<std::ptrdiff_t>(i));
  }
}

TEST(Radiator, NamesItsFormula) {
  CZPRadiator radiator;
  EXPECT_EQ(radiator.GetCalFormula(), L"Qs=a×△T^b");
  radiator.m_nFormula = 1;
  EXPECT_EQ(radiator.GetCalFormula(), L"Qs=k×f×△T");
  radiator.m_nFormula = 2;
  EXPECT_EQ(radiator.GetCalFormula(), L"Qs=Qs'");
  for (const int code : {-1, 3, 2147483647}) {
    radiator.m_nFormula = code;
    EXPECT_EQ(radiator.GetCalFormula(), L"Error!") << code;
  }
}

TEST(Radiator, CarriesNameFieldsAndInputAlongWhenCopied) {
  CZPRadiator radiator;
  radiator.SetName(L"甲");
  radiator.m_dA = 7;
  radiator.m_calData.dbQj = 5;
  CZPRadiator copy(radiator);
  EXPECT_EQ(RadiatorText(copy), RadiatorText(radiator));
  EXPECT_EQ(copy.m_calData.dbQj, 5);
  CZPRadiator assigned;
  assigned = radiator;
  EXPECT_EQ(RadiatorText(assigned), RadiatorText(radiator));
  copy.SetName(L"乙");
  EXPECT_EQ(radiator.GetName(), L"甲");
}

TEST(RadiatorObjects, GiveTheirNameThroughTheBase) {
  CZPRadiator radiator;
  radiator.SetName(L"名");
  CZPRadiatorObject& base = radiator;
  EXPECT_EQ(base.GetName(), L"名");
  CString copy = base.GetName();
  copy += L"x";
  EXPECT_EQ(base.GetName(), L"名");
  EXPECT_EQ(CZPRadiatorObject().GetName(), L"");
}

TEST(RadiatorObjects, AreToldApartByTheirClass) {
  const CZPRadiator radiator;
  const CZPRadiatorType type;
  const CZPRadiatorObject& first = radiator;
  const CZPRadiatorObject& second = type;
  EXPECT_TRUE(first.IsKindOf(RUNTIME_CLASS(CZPRadiator)));
  EXPECT_FALSE(first.IsKindOf(RUNTIME_CLASS(CZPRadiatorType)));
  EXPECT_TRUE(second.IsKindOf(RUNTIME_CLASS(CZPRadiatorType)));
  EXPECT_FALSE(second.IsKindOf(RUNTIME_CLASS(CZPRadiator)));
  EXPECT_FALSE(second.IsKindOf(RUNTIME_CLASS(CZPRadiatorManager)));
  EXPECT_TRUE(second.IsKindOf(RUNTIME_CLASS(CZPRadiatorObject)));
  EXPECT_TRUE(second.IsKindOf(RUNTIME_CLASS(CObject)));
  for (const CRuntimeClass* derived :
       {RUNTIME_CLASS(CZPRadiator), RUNTIME_CLASS(CZPRadiatorType), RUNTIME_CLASS(CZPRadiatorManager)})
    EXPECT_EQ(derived->m_pBaseClass, RUNTIME_CLASS(CZPRadiatorObject));
}

// Where the virtual table of a class has an operation. A pointer to a virtual member holds its offset and 1.
template <typename Class> std::size_t SlotOfGetName() {
  CString (Class::*member)() const = &Class::GetName;
  std::size_t offset = 0;
  std::memcpy(&offset, &member, sizeof offset);
  return (offset - 1) / sizeof(void*);
}

TEST(RadiatorObjects, HaveTheNameBehindTheSlotsOfTheFramework) {
  // GetRuntimeClass, two entries for the destructor, Serialize, AssertValid, Dump.
  EXPECT_EQ(SlotOfGetName<CZPRadiatorObject>(), 6u);
}

} // namespace
