#include "host/afx/CObject.h"

#include <string>

#include <gtest/gtest.h>

namespace {

class CShape : public CObject {
  DECLARE_DYNAMIC(CShape)
};
class CCircle : public CShape {
  DECLARE_DYNAMIC(CCircle)
};
class CLabel : public CObject {
  DECLARE_DYNAMIC(CLabel)
};

// Derived first: the record of a base that stands further down is ready all the same.
IMPLEMENT_DYNAMIC(CCircle, CShape)
IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNAMIC(CLabel, CObject)

TEST(CObject, TellsItsClassThroughABasePointer) {
  const CCircle circle;
  const CObject& object = circle;
  EXPECT_EQ(object.GetRuntimeClass(), RUNTIME_CLASS(CCircle));
  EXPECT_STREQ(object.GetRuntimeClass()->m_lpszClassName, L"CCircle");
}

TEST(CObject, KnowsItsBases) {
  const CCircle circle;
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
  EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
  EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CLabel)));
  EXPECT_FALSE(RUNTIME_CLASS(CShape)->IsDerivedFrom(RUNTIME_CLASS(CCircle)));
  EXPECT_EQ(CCircle::_GetBaseClass(), CShape::GetThisClass());
  EXPECT_EQ(RUNTIME_CLASS(CCircle)->m_pBaseClass, RUNTIME_CLASS(CShape));
  EXPECT_EQ(RUNTIME_CLASS(CObject)->m_pBaseClass, nullptr);
}

} // namespace
