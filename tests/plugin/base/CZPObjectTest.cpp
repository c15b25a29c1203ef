// The object base: name, last error, class at run time, and the order of the virtual operations.
#include <cstring>

#include <gtest/gtest.h>

#include "plugin/base/CZPObject.h"

namespace {

class Factory : public CZPObject {
  DECLARE_DYNAMIC(Factory)

 public:
  void SetName(const CString& name) override { CZPObject::SetName(L"厂家 " + name); }
};
IMPLEMENT_DYNAMIC(Factory, CZPObject)

TEST(CZPObject, TellsItsClassFromTheRunTimeRecord) {
  const CZPObject object;
  const Factory factory;
  EXPECT_EQ(object.GetClassName(), L"CZPObject");
  EXPECT_EQ(factory.GetClassName(), L"Factory");
  EXPECT_EQ(factory.GetRuntimeClass(), Factory::GetThisClass());
  EXPECT_EQ(Factory::_GetBaseClass(), CZPObject::GetThisClass());
  EXPECT_EQ(CZPObject::_GetBaseClass(), RUNTIME_CLASS(CObject));
  EXPECT_TRUE(Factory::GetThisClass()->IsDerivedFrom(CZPObject::GetThisClass()));
}

TEST(CZPObject, RemembersNameAndLastError) {
  CZPObject object;
  EXPECT_EQ(object.GetName(), L"");
  EXPECT_EQ(object.GetLastError(), L"");
  object.SetName(L"风机盘管");
  object.SetLastError(L"错误");
  EXPECT_EQ(object.GetName(), L"风机盘管");
  EXPECT_EQ(object.GetLastError(), L"错误");
}

TEST(CZPObject, CopyingAndAssigningCarryTheNameAlong) {
  CZPObject object;
  object.SetName(L"名");
  object.SetLastError(L"错");
  const CZPObject copy(object);
  CZPObject assigned;
  assigned = object;
  EXPECT_EQ(copy.GetName(), L"名");
  EXPECT_EQ(assigned.GetName(), L"名");
  EXPECT_EQ(assigned.GetLastError(), L"错");
}

TEST(CZPObject, ADerivedClassMayTakeItsNameInItsOwnWay) {
  Factory factory;
  CZPObject& base = factory;
  base.SetName(L"甲");
  EXPECT_EQ(factory.GetName(), L"厂家 甲");
}

// A pointer to a virtual member holds the offset of its slot. Siblings compiled earlier call by slot.
template <class Member> std::ptrdiff_t SlotOffset(Member member) {
  std::ptrdiff_t offset;
  std::memcpy(&offset, &member, sizeof offset);
  return offset;
}

TEST(CZPObject, TheOwnVirtualOperationsFollowTheFrameworksInTheirOrder) {
  const std::ptrdiff_t slot = sizeof(void*);
  const std::ptrdiff_t last = SlotOffset(&CObject::Dump);
  EXPECT_EQ(SlotOffset(&CZPObject::GetClassName), last + slot);
  EXPECT_EQ(SlotOffset(&CZPObject::SetLastError), last + 2 * slot);
  EXPECT_EQ(SlotOffset(&CZPObject::GetLastError), last + 3 * slot);
  EXPECT_EQ(SlotOffset(&CZPObject::SetName), last + 4 * slot);
}

} // namespace
