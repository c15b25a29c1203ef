#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"

namespace {

using RadiatorCatalogue = RadiatorCatalogueFixture;

class CountedRadiator : public CZPRadiator {
 public:
  explicit CountedRadiator(int& destroyed) : m_destroyed(destroyed) {}
  ~CountedRadiator() override { ++m_destroyed; }

 private:
  int& m_destroyed;
};

TEST_F(RadiatorCatalogue, IsOneObjectByTheNameOfTheTreesRoot) {
  EXPECT_EQ(CZPRadiatorManager::GetInstance(), CZPRadiatorManager::GetInstance());
  EXPECT_EQ(catalogue.GetName(), L"全部散热器");
  EXPECT_TRUE(catalogue.IsKindOf(RUNTIME_CLASS(CZPRadiatorManager)));
}

TEST_F(RadiatorCatalogue, HasNoInitialRadiatorWhenEmpty) {
  EXPECT_EQ(catalogue.GetInitialRadiator(), nullptr);
  EXPECT_EQ(catalogue.GetRadiator(L"", L""), nullptr);
  EXPECT_EQ(catalogue.GetRadiatorType(L""), nullptr);
}

TEST_F(RadiatorCatalogue, TakesTheInitialRadiatorBehindEmptyTypesAndNullElements) {
  catalogue.m_arrTypes.Add(nullptr);
  AddType(L"空");
  CZPRadiatorType* type = AddType(L"甲");
  type->m_arrRadiators.Add(nullptr);
  EXPECT_EQ(catalogue.GetInitialRadiator(), nullptr);
  CZPRadiator* radiator = AddRadiator(type, L"1");
  AddRadiator(AddType(L"乙"), L"2");
  EXPECT_EQ(catalogue.GetInitialRadiator(), radiator);
}

TEST_F(RadiatorCatalogue, LeavesATypeThatIsAddedAgainUntouched) {
  ASSERT_TRUE(catalogue.Add(L"X"));
  CZPRadiatorType* type = catalogue.GetRadiatorType(L"X");
  CZPRadiator* radiator = AddRadiator(type, L"1");
  EXPECT_FALSE(catalogue.Add(L"X"));
  EXPECT_EQ(catalogue.m_arrTypes.GetSize(), 1);
  EXPECT_EQ(catalogue.GetRadiatorType(L"X"), type);
  EXPECT_EQ(type->GetRadiator(L"1"), radiator);
}

TEST_F(RadiatorCatalogue, RefusesNullAndALikeNamedTypeWhichStaysTheCallers) {
  CZPRadiatorType* held = AddType(L"甲");
  CZPRadiatorType second;
  second.SetName(L"甲");
  EXPECT_FALSE(catalogue.Add(&second));
  EXPECT_FALSE(catalogue.Add(held));
  EXPECT_FALSE(catalogue.Add(static_cast<CZPRadiatorType*>(nullptr)));
  EXPECT_EQ(catalogue.m_arrTypes.GetSize(), 1);
}

TEST_F(RadiatorCatalogue, TakesATypeWithItsRadiators) {
  auto* type = new CZPRadiatorType;
  type->SetName(L"甲");
  AddRadiator(type, L"1");
  EXPECT_TRUE(catalogue.Add(type));
  EXPECT_EQ(Names(), L"甲(1)");
}

TEST_F(RadiatorCatalogue, FindsARadiatorInTheTypeNamedAndNowhereElse) {
  CZPRadiator* inFirst = AddRadiator(AddType(L"甲"), L"同名");
  CZPRadiator* inSecond = AddRadiator(AddType(L"乙"), L"同名");
  CZPRadiator* only = AddRadiator(catalogue.GetRadiatorType(L"乙"), L"独有");
  EXPECT_EQ(catalogue.GetRadiator(L"同名", L"甲"), inFirst);
  EXPECT_EQ(catalogue.GetRadiator(L"同名", L"乙"), inSecond);
  EXPECT_EQ(catalogue.GetRadiator(L"独有", L"甲"), nullptr);
  EXPECT_EQ(catalogue.GetRadiator(L"独有", L"乙"), only);
  EXPECT_EQ(catalogue.GetRadiator(L"同名", L"丙"), nullptr);
}

TEST_F(RadiatorCatalogue, FindsTheFirstMatchInTypeOrderWithoutATypesName) {
  catalogue.m_arrTypes.Add(nullptr);
  AddType(L"空");
  CZPRadiator* first = AddRadiator(AddType(L"甲"), L"同名");
  AddRadiator(AddType(L"乙"), L"同名");
  CZPRadiator* only = AddRadiator(catalogue.GetRadiatorType(L"乙"), L"独有");
  EXPECT_EQ(catalogue.GetRadiator(L"同名", L""), first);
  EXPECT_EQ(catalogue.GetRadiator(L"独有", L""), only);
  EXPECT_EQ(catalogue.GetRadiator(L"没有", L""), nullptr);
}

TEST_F(RadiatorCatalogue, DestroysATypeWithItsRadiatorsWhenRemoved) {
  CZPRadiatorType* type = AddType(L"甲");
  AddType(L"乙");
  int destroyed = 0;
  for (const wchar_t* name : {L"1", L"2"}) {
    auto* radiator = new CountedRadiator(destroyed);
    radiator->SetName(name);
    ASSERT_TRUE(type->Add(radiator));
  }
  CZPRadiatorType stranger;
  stranger.SetName(L"甲");
  EXPECT_FALSE(catalogue.Remove(&stranger));
  EXPECT_FALSE(catalogue.Remove(nullptr));
  EXPECT_EQ(destroyed, 0);
  EXPECT_TRUE(catalogue.Remove(type));
  EXPECT_EQ(destroyed, 2);
  EXPECT_EQ(Names(), L"乙()");
}

TEST_F(RadiatorCatalogue, KeepsATypeWithoutRadiators) {
  CZPRadiatorType* type = AddType(L"甲");
  EXPECT_TRUE(type->Remove(AddRadiator(type, L"1")));
  EXPECT_EQ(Names(), L"甲()");
}

TEST_F(RadiatorCatalogue, SharesItsTypesWithACopy) {
  CZPRadiatorType* type = AddType(L"甲");
  CZPRadiatorManager copy(catalogue);
  EXPECT_EQ(copy.GetName(), L"全部散热器");
  ASSERT_EQ(copy.m_arrTypes.GetSize(), 1);
  EXPECT_EQ(copy.m_arrTypes[0], type);
  copy.m_arrTypes.RemoveAll(); // or both would destroy the type
}

TEST_F(RadiatorCatalogue, RaisesAnErrorForAnIndexOutOfRange) {
  EXPECT_THROW(catalogue.m_arrTypes[0], CInvalidArgException);
}

// Each in a process of its own, where the catalogue has not been built yet.
class FirstUseOfTheRadiatorCatalogue : public testing::Test {
 protected:
  FirstUseOfTheRadiatorCatalogue() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_F(FirstUseOfTheRadiatorCatalogue, ReadsTheFileOnceAndSavesNothing) {
  EXPECT_EXIT(
      {
        const TempInstall install;
        install.Write("HeatingData/Srq.idp", R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}]}])");
        bool ok = CZPRadiatorManager::GetInstance()->GetRadiator(L"1", L"甲") != nullptr;
        std::filesystem::remove(install.Root() / "HeatingData/Srq.idp");
        ok = ok && CZPRadiatorManager::GetInstance()->m_arrTypes.GetSize() == 1;
        ok = ok && !install.Has("HeatingData/Srq.idp");
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(FirstUseOfTheRadiatorCatalogue, WithoutAFileIsEmpty) {
  EXPECT_EXIT(
      {
        const TempInstall install;
        const CZPRadiatorManager& catalogue = *CZPRadiatorManager::GetInstance();
        const bool ok = catalogue.m_arrTypes.IsEmpty() && !catalogue.GetInitialRadiator() &&
                        catalogue.GetName() == L"全部散热器" && !install.Has("HeatingData");
        std::exit(ok ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(FirstUseOfTheRadiatorCatalogue, RaisesTheErrorOfABrokenFileAndTriesAgainAtTheNextCall) {
  EXPECT_EXIT(
      {
        const TempInstall install;
        install.Write("HeatingData/Srq.idp", R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}],"1":""}])");
        int errors = 0;
        for (int i = 0; i < 2; ++i) {
          try {
            CZPRadiatorManager::GetInstance();
          } catch (const CInvalidArgException&) {
            ++errors;
          }
        }
        install.Write("HeatingData/Srq.idp", R"(["Version:2.0",{"0":["",{"甲":[0,{"1":""}]}]}])");
        std::exit(errors == 2 && CZPRadiatorManager::GetInstance()->m_arrTypes.GetSize() == 1 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

} // namespace
