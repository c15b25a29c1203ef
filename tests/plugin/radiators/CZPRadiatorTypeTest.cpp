#include <memory>

#include <gtest/gtest.h>

#include "plugin/radiators/CZPRadiatorType.h"

namespace {

// Tells when it is destroyed, which shows that the destructor is virtual.
class Counted : public CZPRadiator {
 public:
  Counted(const wchar_t* name, int& destroyed) : m_destroyed(destroyed) { SetName(name); }
  ~Counted() override { ++m_destroyed; }

 private:
  int& m_destroyed;
};

TEST(RadiatorType, OwnsItsRadiatorsInOrderOfAdding) {
  int destroyed = 0;
  {
    CZPRadiatorType type;
    auto* first = new Counted(L"乙", destroyed);
    auto* second = new Counted(L"甲", destroyed);
    EXPECT_TRUE(type.Add(first));
    EXPECT_TRUE(type.Add(second));
    type.m_arrRadiators.Add(nullptr);
    EXPECT_EQ(type.m_arrRadiators[0], first);
    EXPECT_EQ(type.m_arrRadiators[1], second);
    EXPECT_EQ(destroyed, 0);
  }
  EXPECT_EQ(destroyed, 2);
}

TEST(RadiatorType, BecomesTheParentOfWhatItTakes) {
  CZPRadiatorType type;
  int destroyed = 0;
  auto* radiator = new Counted(L"甲", destroyed);
  ASSERT_TRUE(type.Add(radiator));
  EXPECT_EQ(radiator->GetParent(), &type);
  EXPECT_TRUE(radiator->GetParent()->IsKindOf(RUNTIME_CLASS(CZPRadiatorType)));
}

TEST(RadiatorType, RefusesALikeNamedRadiatorWhichStaysTheCallers) {
  int destroyed = 0;
  auto refused = std::make_unique<Counted>(L"甲", destroyed);
  {
    CZPRadiatorType type;
    auto* first = new Counted(L"甲", destroyed);
    ASSERT_TRUE(type.Add(first));
    EXPECT_FALSE(type.Add(refused.get()));
    EXPECT_FALSE(type.Add(first));
    EXPECT_FALSE(type.Add(nullptr));
    EXPECT_EQ(type.m_arrRadiators.GetSize(), 1);
    EXPECT_EQ(refused->GetParent(), nullptr);
  }
  EXPECT_EQ(destroyed, 1); // the first alone
  refused.reset();
  EXPECT_EQ(destroyed, 2);
}

TEST(RadiatorType, FindsByExactNameAndPassesOverNullElements) {
  CZPRadiatorType type;
  int destroyed = 0;
  type.m_arrRadiators.Add(nullptr);
  auto* radiator = new Counted(L"M-132型", destroyed);
  ASSERT_TRUE(type.Add(radiator));
  EXPECT_EQ(type.GetRadiator(L"M-132型"), radiator);
  EXPECT_EQ(type.GetRadiator(L"m-132型"), nullptr);
  EXPECT_EQ(type.GetRadiator(L"M-132型 "), nullptr);
  EXPECT_EQ(type.GetRadiator(L""), nullptr);
}

TEST(RadiatorType, RemovesByPointerAndDestroys) {
  CZPRadiatorType type;
  int destroyed = 0;
  auto* first = new Counted(L"甲", destroyed);
  auto* second = new Counted(L"乙", destroyed);
  type.Add(first);
  type.Add(second);
  CZPRadiator stranger;
  stranger.SetName(L"甲");
  EXPECT_FALSE(type.Remove(&stranger));
  EXPECT_FALSE(type.Remove(nullptr));
  EXPECT_EQ(destroyed, 0);
  EXPECT_TRUE(type.Remove(first));
  EXPECT_EQ(destroyed, 1);
  ASSERT_EQ(type.m_arrRadiators.GetSize(), 1);
  EXPECT_EQ(type.m_arrRadiators[0], second);
}

} // namespace
