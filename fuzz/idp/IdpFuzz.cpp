// Any bytes as the text of a parameter file: they are refused with an empty tree, or read into a tree whose
// own text reads back as the same tree. Then keys are removed and set in an order that the bytes choose.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "plugin/base/CIDPEx.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

std::string ImageOf(const std::string& text) {
  std::string image = "IDP1";
  for (int i = 0; i < 8; ++i) image += static_cast<char>(text.size() >> (8 * i) & 0xFF);
  return image + text;
}

void RoundTrip(CIDPEx& tree) {
  std::string image;
  Require(tree.WriteDataToBuffer(image) != 0);
  CIDPEx again;
  Require(again.ReadDataFromBuffer(image.data(), image.size()) != 0);
  std::string second;
  Require(again.WriteDataToBuffer(second) != 0);
  Require(image == second);
}

// Every key that is listed is found, once.
void Walk(CIDPEx& node, int levels) {
  for (const CString& key : node.SubKeyNames) {
    CString text;
    double number;
    int integer;
    Require(node.GetSubValue(key, text) && node.GetSubValue(key, number) && node.GetSubValue(key, integer));
    CIDPEx* below = node.GetSubItem(key);
    Require(below != nullptr);
    if (levels > 0) Walk(*below, levels - 1);
  }
}

void Change(CIDPEx& tree, const uint8_t* data, std::size_t size) {
  for (std::size_t i = 0; i < size && i < 200; ++i) {
    const int count = tree.SubKeyNames.GetSize();
    if (data[i] % 2 && count > 0) {
      tree.DeleteSubKey(tree.SubKeyNames[data[i] % count]);
    } else {
      tree.SetSubValue(CString(std::to_wstring(data[i] / 2)), data[i]);
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string image = ImageOf(std::string(reinterpret_cast<const char*>(data), size));
  CIDPEx tree;
  tree.SetSubValue(L"before", 1);
  if (tree.ReadDataFromBuffer(image.data(), image.size())) {
    Walk(tree, 20);
    RoundTrip(tree);
  } else {
    Require(tree.SubKeyNames.GetSize() == 0);
  }
  Change(tree, data, size);
  RoundTrip(tree);

  CIDPEx raw; // and as an image with whatever head it has
  raw.ReadDataFromBuffer(static_cast<const void*>(data), size);
  return 0;
}
