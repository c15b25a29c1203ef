// The memory image of a tree, as it stands in the records of a drawing.
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/plugin/base/TreeText.h"

namespace {

TEST(MemoryImage, HoldsMarkLengthAndTheTextOfAFile) {
  CIDPEx tree;
  std::string image;
  ASSERT_NE(tree.WriteDataToBuffer(image), 0);
  EXPECT_EQ(image, std::string("IDP1\x08\0\0\0\0\0\0\0[\"\",{}]\n", 20));
}

TEST(MemoryImage, ARichTreeComesBackThroughTheUnsizedBuffer) {
  CIDPEx tree;
  FillRichSample(tree);
  std::string image;
  ASSERT_NE(tree.WriteDataToBuffer(image), 0);
  CIDPEx read;
  read.SetSubValue(L"before", 1);
  EXPECT_NE(read.ReadDataFromBuffer(image.data()), 0);
  EXPECT_EQ(TreeText(read), TreeText(tree));
}

TEST(MemoryImage, TheTextNeedsNoRoomBehindIt) {
  const std::string text = "[\"\",{\"a\":1}]";
  const std::string image = ImageOf(text);
  std::vector<char> exact(image.begin(), image.end()); // the address sanitizer watches its end
  exact.shrink_to_fit();
  CIDPEx tree;
  EXPECT_NE(tree.ReadDataFromBuffer(static_cast<void*>(exact.data())), 0);
  EXPECT_NE(tree.ReadDataFromBuffer(exact.data(), exact.size()), 0);
}

TEST(MemoryImage, BytesBehindTheImageAreIgnored) {
  const std::string image = ImageOf("[\"\",{\"a\":1}]") + "}]garbage";
  CIDPEx tree;
  EXPECT_NE(tree.ReadDataFromBuffer(image.data(), image.size()), 0);
  EXPECT_EQ(TreeText(tree), "[\"\",{\"a\":1}]\n");
}

TEST(MemoryImage, ALengthThatCannotBeRightGivesAnEmptyTree) {
  for (const unsigned long long length : {0ull, 6ull, 256ull * 1024 * 1024 + 1, 1ull << 63, ~0ull}) {
    std::string image = ImageOf("[\"\",{\"a\":1}]");
    std::memcpy(image.data() + 4, &length, 8);
    CIDPEx tree;
    tree.SetSubValue(L"before", 1);
    EXPECT_EQ(tree.ReadDataFromBuffer(image.data()), 0) << length;
    EXPECT_EQ(TreeText(tree), "[\"\",{}]\n");
    tree.SetSubValue(L"before", 1);
    EXPECT_EQ(tree.ReadDataFromBuffer(image.data(), image.size()), 0) << length;
    EXPECT_EQ(TreeText(tree), "[\"\",{}]\n");
  }
}

TEST(MemoryImage, NullAndAForeignMarkGiveAnEmptyTree) {
  char foreign[32] = "<xml>";
  CIDPEx tree;
  tree.SetSubValue(L"before", 1);
  EXPECT_EQ(tree.ReadDataFromBuffer(nullptr), 0);
  EXPECT_EQ(tree.ReadDataFromBuffer(nullptr, 100), 0);
  EXPECT_EQ(tree.ReadDataFromBuffer(foreign), 0);
  EXPECT_EQ(tree.ReadDataFromBuffer(foreign, sizeof foreign), 0);
  EXPECT_EQ(TreeText(tree), "[\"\",{}]\n");
}

TEST(MemoryImage, ASizedImageCutOffAtAnyByteGivesAnEmptyTree) {
  const std::string image = ImageOf("[\"\",{\"a\":[1,{\"b\":2.5}]}]");
  for (std::size_t size = 0; size < image.size(); ++size) {
    const std::vector<char> cut(image.begin(), image.begin() + static_cast<std::ptrdiff_t>(size));
    CIDPEx tree;
    EXPECT_EQ(tree.ReadDataFromBuffer(cut.data(), cut.size()), 0) << size;
    EXPECT_TRUE(tree.SubKeyNames.IsEmpty());
  }
}

} // namespace
