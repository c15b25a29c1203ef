#include "host/db/HandleIndex.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

TEST(HandleIndex, FindsWhatWasFiledAndNothingElse) {
  // Neighbours, the ends of pages, and both ends of the range.
  const std::uint64_t handles[] = {1, 2, 31, 32, 33, 63, 64, 1000000, 0xABCDEF0123, ~std::uint64_t{0}};
  std::vector<AcDbStub> stubs(std::size(handles));
  HandleIndex index;
  for (std::size_t i = 0; i < stubs.size(); ++i) EXPECT_TRUE(index.insert(AcDbHandle(handles[i]), &stubs[i]));
  for (std::size_t i = 0; i < stubs.size(); ++i) EXPECT_EQ(index.find(AcDbHandle(handles[i])), &stubs[i]);
  for (const std::uint64_t other : {3, 30, 34, 62, 65, 999999})
    EXPECT_EQ(index.find(AcDbHandle(other)), nullptr) << other;
}

TEST(HandleIndex, KeepsTheFirstOfTwoUnderOneHandle) {
  AcDbStub first;
  AcDbStub second;
  HandleIndex index;
  EXPECT_TRUE(index.insert(AcDbHandle(7), &first));
  EXPECT_FALSE(index.insert(AcDbHandle(7), &second));
  EXPECT_EQ(index.find(AcDbHandle(7)), &first);
}

} // namespace
