#include "tests/plugin/fancoil/CatalogueFixture.h"

namespace {

class Factory : public CatalogueFixture {
 protected:
  Factory() { factory.SetName(L"甲厂"); }
  CFCUFactory factory;
};

// Counts how many of its kind have been destroyed.
struct CountedEquipment : CFCUEquipment {
  explicit CountedEquipment(int& count) : destroyed(count) {}
  ~CountedEquipment() override { ++destroyed; }
  int& destroyed;
};

TEST_F(Factory, AddEntersMakerAndParent) {
  CFCUEquipment* equipment = AddModel(&factory, L"FP-34");
  EXPECT_EQ(equipment->m_data.szFactory, L"甲厂");
  EXPECT_EQ(equipment->GetParent(), &factory);
}

TEST_F(Factory, AddRefusesNullAndWhatIsInAlready) {
  EXPECT_EQ(factory.Add(nullptr), 0);
  CFCUEquipment* equipment = AddModel(&factory, L"FP-34");
  EXPECT_EQ(factory.Add(equipment), 0);
  EXPECT_EQ(factory.m_arrEquipments.GetSize(), 1);
}

TEST_F(Factory, ARefusedModelKeepsMakerAndParentAndStaysWithTheCaller) {
  AddModel(&factory, L"FP-34");
  CFCUFactory other;
  auto refused = Model(L"FP-34");
  refused->m_data.szFactory = L"别的";
  refused->SetParent(&other);
  EXPECT_EQ(factory.Add(refused.get()), 0);
  EXPECT_EQ(refused->m_data.szFactory, L"别的");
  EXPECT_EQ(refused->GetParent(), &other);
  EXPECT_EQ(factory.m_arrEquipments.GetSize(), 1);
}

TEST_F(Factory, NamesDifferByCaseAndByBlanks) {
  AddModel(&factory, L"fp-34");
  AddModel(&factory, L"FP-34");
  AddModel(&factory, L"FP-34 ");
  EXPECT_EQ(factory.m_arrEquipments.GetSize(), 3);
  EXPECT_EQ(factory.GetEquipment(L"Fp-34"), nullptr);
}

TEST_F(Factory, AddComparesTheNameOfTheObjectAndNotTheModelInItsRecord) {
  AddModel(&factory, L"FP-34")->m_data.szMode = L"FP-51";
  auto same = Model(L"FP-34");
  EXPECT_EQ(factory.Add(same.get()), 0);
  AddModel(&factory, L"FP-51");
}

TEST_F(Factory, TheDestructorDeletesItsModels) {
  int destroyed = 0;
  {
    CFCUFactory own;
    own.m_arrEquipments.Add(new CountedEquipment(destroyed));
    own.m_arrEquipments.Add(nullptr);
    own.m_arrEquipments.Add(new CountedEquipment(destroyed));
  }
  EXPECT_EQ(destroyed, 2);
}

TEST_F(Factory, RemoveDeletesAndClosesTheGap) {
  int destroyed = 0;
  AddModel(&factory, L"A");
  auto* counted = new CountedEquipment(destroyed);
  counted->SetName(L"B");
  ASSERT_EQ(factory.Add(counted), 1);
  AddModel(&factory, L"C");
  EXPECT_EQ(factory.Remove(counted), 1);
  EXPECT_EQ(destroyed, 1);
  ASSERT_EQ(factory.m_arrEquipments.GetSize(), 2);
  EXPECT_EQ(factory.m_arrEquipments[1]->GetName(), L"C");
}

TEST_F(Factory, RemoveOfNullOrFromAnEmptyFactoryDoesNothing) {
  auto own = Model(L"A");
  EXPECT_EQ(factory.Remove(own.get()), 0);
  EXPECT_EQ(factory.Remove(nullptr), 0);
  factory.m_arrEquipments.Add(nullptr);
  EXPECT_EQ(factory.Remove(nullptr), 0);
  EXPECT_EQ(factory.m_arrEquipments.GetSize(), 1);
}

TEST_F(Factory, RemoveOfAnotherFactorysModelDeletesNothing) {
  AddModel(&factory, L"A");
  CFCUFactory other;
  CFCUEquipment* foreign = AddModel(&other, L"A");
  EXPECT_EQ(factory.Remove(foreign), 0);
  EXPECT_EQ(factory.m_arrEquipments.GetSize(), 1);
  EXPECT_EQ(other.GetEquipment(L"A"), foreign);
}

TEST_F(Factory, GetEquipmentGivesTheFirstOfANamePastNullEntries) {
  factory.m_arrEquipments.Add(nullptr);
  CFCUEquipment* first = AddModel(&factory, L"A");
  factory.m_arrEquipments.Add(Model(L"A").release());
  EXPECT_EQ(factory.GetEquipment(L"A"), first);
  EXPECT_EQ(factory.GetEquipment(L"B"), nullptr);
  EXPECT_EQ(factory.GetEquipment(L""), nullptr);
}

TEST_F(Factory, NamesAreAppendedBehindWhatTheArrayHolds) {
  CStringArray out;
  out.Add(L"先前");
  EXPECT_EQ(factory.GetAllEquipmentName(out), 0);
  EXPECT_EQ(out.GetSize(), 1);
  AddModel(&factory, L"A");
  factory.m_arrEquipments.Add(nullptr);
  AddModel(&factory, L"B");
  EXPECT_EQ(factory.GetAllEquipmentName(out), 1);
  ASSERT_EQ(out.GetSize(), 3);
  EXPECT_EQ(out[0], L"先前");
  EXPECT_EQ(out[1], L"A");
  EXPECT_EQ(out[2], L"B");
}

TEST_F(Factory, ACopyHasModelsOfItsOwn) {
  AddModel(&factory, L"A");
  factory.m_arrEquipments.Add(nullptr);
  const CFCUFactory copy(factory);
  CFCUFactory assigned;
  AddModel(&assigned, L"B");
  assigned = factory;
  assigned = *&assigned;
  for (const CFCUFactory* each : {&copy, static_cast<const CFCUFactory*>(&assigned)}) {
    EXPECT_EQ(each->GetName(), L"甲厂");
    ASSERT_EQ(each->m_arrEquipments.GetSize(), 2);
    EXPECT_NE(each->m_arrEquipments[0], factory.m_arrEquipments[0]);
    EXPECT_EQ(each->m_arrEquipments[0]->GetParent(), each);
    EXPECT_EQ(each->m_arrEquipments[1], nullptr);
  }
}

} // namespace
