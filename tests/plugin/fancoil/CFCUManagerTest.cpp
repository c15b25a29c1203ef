#include <cstdlib>

#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

using Manager = CatalogueFixture;

TEST_F(Manager, IsOneObjectOfAFixedName) {
  EXPECT_EQ(CFCUManager::GetInstance(), &catalogue);
  EXPECT_EQ(catalogue.GetName(), L"风机盘管");
  EXPECT_EQ(catalogue.GetClassName(), L"CFCUManager");
}

TEST_F(Manager, EmptyHasNoNamesAndNoInitialModel) {
  CStringArray out;
  out.Add(L"先前");
  EXPECT_EQ(catalogue.GetAllFactoryName(out), 0);
  EXPECT_EQ(out.GetSize(), 1);
  EXPECT_EQ(catalogue.GetInitialFCU(), nullptr);
  EXPECT_EQ(catalogue.GetFactory(L""), nullptr);
  EXPECT_EQ(catalogue.GetFCUEquipment(L"A", L""), nullptr);
}

TEST_F(Manager, TheInitialModelIsTheFirstOfTheFirstFactoryThatHasOne) {
  catalogue.m_arrFactories.Add(nullptr);
  AddFactory(L"甲");
  CFCUFactory* second = AddFactory(L"乙");
  second->m_arrEquipments.Add(nullptr);
  CFCUEquipment* model = AddModel(second, L"A");
  AddModel(AddFactory(L"丙"), L"B");
  EXPECT_EQ(catalogue.GetInitialFCU(), model);
}

TEST_F(Manager, AModelIsSearchedInAllFactoriesOrInTheNamedOneOnly) {
  CFCUFactory* first = AddFactory(L"甲");
  AddModel(first, L"A");
  CFCUEquipment* model = AddModel(AddFactory(L"乙"), L"B");
  catalogue.m_arrFactories.Add(nullptr);
  EXPECT_EQ(catalogue.GetFCUEquipment(L"B", L""), model);
  EXPECT_EQ(catalogue.GetFCUEquipment(L"B", L"乙"), model);
  EXPECT_EQ(catalogue.GetFCUEquipment(L"B", L"甲"), nullptr);
  EXPECT_EQ(catalogue.GetFCUEquipment(L"B", L"丁"), nullptr);
}

TEST_F(Manager, AModelIsSearchedInEveryFactoryOfTheName) {
  AddFactory(L"甲");
  auto* twin = new CFCUFactory;
  twin->SetName(L"甲");
  catalogue.m_arrFactories.Add(twin);
  CFCUEquipment* model = AddModel(twin, L"A");
  EXPECT_EQ(catalogue.GetFCUEquipment(L"A", L"甲"), model);
}

TEST_F(Manager, AddRefusesNullThePointerAndTheName) {
  CFCUFactory* factory = AddFactory(L"甲");
  EXPECT_EQ(catalogue.Add(nullptr), 0);
  EXPECT_EQ(catalogue.Add(factory), 0);
  CFCUFactory twin;
  twin.SetName(L"甲");
  EXPECT_EQ(catalogue.Add(&twin), 0);
  EXPECT_EQ(Outline(), L"甲{}");
}

TEST_F(Manager, RemoveDropsAFactoryWithItsModels) {
  CFCUFactory* first = AddFactory(L"甲");
  AddModel(first, L"A");
  AddFactory(L"乙");
  CFCUFactory foreign;
  EXPECT_EQ(catalogue.Remove(nullptr), 0);
  EXPECT_EQ(catalogue.Remove(&foreign), 0);
  EXPECT_EQ(catalogue.Remove(first), 1);
  EXPECT_EQ(Outline(), L"乙{}");
}

TEST_F(Manager, FactoryNamesAreAppendedInOrder) {
  AddFactory(L"乙");
  catalogue.m_arrFactories.Add(nullptr);
  AddFactory(L"甲");
  CStringArray out;
  out.Add(L"先前");
  EXPECT_EQ(catalogue.GetAllFactoryName(out), 1);
  ASSERT_EQ(out.GetSize(), 3);
  EXPECT_EQ(out[1], L"乙");
  EXPECT_EQ(out[2], L"甲");
}

TEST_F(Manager, ACopyHasFactoriesOfItsOwn) {
  AddModel(AddFactory(L"甲"), L"A");
  CFCUManager copy(catalogue);
  EXPECT_EQ(copy.GetName(), L"风机盘管");
  ASSERT_EQ(copy.m_arrFactories.GetSize(), 1);
  EXPECT_NE(copy.m_arrFactories[0], catalogue.m_arrFactories[0]);
  AddFactory(L"乙");
  copy = catalogue;
  EXPECT_EQ(copy.m_arrFactories.GetSize(), 2);
}

// The construction happens once in a process, so each of these has a process of its own.
class ManagerConstruction : public testing::Test {
 protected:
  ManagerConstruction() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
  template <typename Body> [[noreturn]] static void InItsOwnProcess(Body body) {
    bool good = false;
    {
      TempInstall install;
      good = body(install);
    }
    std::_Exit(good ? 0 : 1);
  }
};

TEST_F(ManagerConstruction, ReadsTheFileOnceAndGivesTheSameObject) {
  EXPECT_EXIT(InItsOwnProcess([](const TempInstall& install) {
                install.Write("Data/FCUData.idp", R"(["Version:1.0",{"Count":1,"Factory0":[0,{"Name":"甲",)"
                                                  R"("Count":1,"Equipment0":[0,{"设备型号":"A"}]}]}])");
                CFCUManager* manager = CFCUManager::GetInstance();
                return manager == CFCUManager::GetInstance() && manager->m_arrFactories.GetSize() == 1 &&
                       manager->GetFCUEquipment(L"A", L"甲") && manager->GetName() == L"风机盘管";
              }),
              testing::ExitedWithCode(0), "");
}

TEST_F(ManagerConstruction, WithoutAFileLeavesOneWithTheMarkAndAnEmptyCatalogue) {
  EXPECT_EXIT(InItsOwnProcess([](const TempInstall& install) {
                return CFCUManager::GetInstance()->m_arrFactories.IsEmpty() &&
                       install.Read("Data/FCUData.idp").find("Version:1.0") != std::string::npos;
              }),
              testing::ExitedWithCode(0), "");
}

// The mark is written before the file is read, so what a later version left is read as if it were this one's;
// the copy keeps it as it was.
TEST_F(ManagerConstruction, MarksAFileOfAnotherVersionKeepsACopyAndReadsIt) {
  EXPECT_EXIT(InItsOwnProcess([](const TempInstall& install) {
                install.Write("Data/FCUData.idp",
                              R"(["Version:2.0",{"Count":1,"Factory0":[0,{"Name":"甲"}]}])");
                return CFCUManager::GetInstance()->m_arrFactories.GetSize() == 1 &&
                       install.Read("Data/FCUData.idp.rescued-1").find("Version:2.0") != std::string::npos;
              }),
              testing::ExitedWithCode(0), "");
}

TEST_F(ManagerConstruction, WithADamagedFileKeepsACopyAndIsEmpty) {
  EXPECT_EXIT(InItsOwnProcess([](const TempInstall& install) {
                install.Write("Data/FCUData.idp", R"(["Version:1.0",{"Count":1,"Fact)");
                return CFCUManager::GetInstance()->m_arrFactories.IsEmpty() &&
                       install.Has("Data/FCUData.idp.rescued-1");
              }),
              testing::ExitedWithCode(0), "");
}

} // namespace
