// Any bytes as the text of a dictionary file: they are refused with an empty dictionary and a place inside
// the text, or read into one whose own text reads back as the same. Then items are found, added, moved and
// dropped in an order that the bytes choose, and what came of it is written and read once more.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "plugin/base/VkDtDictionary.h"
#include "plugin/base/xml/Reader.h"
#include "plugin/base/xml/Writer.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

bool SameItem(const VkDtDictItem& a, const VkDtDictItem& b) {
  if (a.GetName() != b.GetName() || a.GetRemark() != b.GetRemark()) return false;
  if (a.GetAttributeNum() != b.GetAttributeNum()) return false;
  for (int i = 0; i < a.GetAttributeNum(); ++i) {
    if (a.GetAttributeName(i) != b.GetAttributeName(i) || a.GetAttributeText(i) != b.GetAttributeText(i))
      return false;
  }
  return true;
}

// A null slot is nothing in the file.
VkDtDictItem* const* PassNull(const VkDtDictionary& tree, VkDtDictItem* const* slot) {
  while (slot && !*slot) slot = tree.GetNext(slot);
  return slot;
}

bool Same(const VkDtDictionary& a, const VkDtDictionary& b) {
  if (!SameItem(a, b)) return false;
  VkDtDictItem* const* left = PassNull(a, a.GetFirst());
  VkDtDictItem* const* right = PassNull(b, b.GetFirst());
  while (left && right) {
    const auto* below = dynamic_cast<const VkDtDictionary*>(*left);
    const auto* other = dynamic_cast<const VkDtDictionary*>(*right);
    if (!below || !other || !Same(*below, *other)) return false;
    left = PassNull(a, a.GetNext(left));
    right = PassNull(b, b.GetNext(right));
  }
  return left == right; // null, both of them
}

void RoundTrip(const VkDtDictionary& tree) {
  std::string text;
  CString reason;
  if (!xml::WriteDictionary(tree, text, reason)) { // beyond the limits, which has to be said
    Require(!reason.IsEmpty());
    return;
  }
  VkDtDictionary again(nullptr, nullptr);
  idp::Fault fault;
  bool dropped = false;
  Require(xml::ReadDictionary(again, text, fault, dropped) && !dropped);
  Require(Same(tree, again));
  std::string second;
  Require(xml::WriteDictionary(again, second, reason));
  Require(text == second);
}

CString Name(uint8_t byte) {
  return CString(wchar_t(byte), 1);
}

void Change(VkDtDictionary& tree, const uint8_t* data, std::size_t size) {
  for (std::size_t i = 0; i + 1 < size && i < 200; i += 2) {
    const CString name = Name(data[i + 1]);
    switch (data[i] % 8) {
    case 0:
    case 1:
    case 2:
      Require(tree.FindOrAddDict(name) == tree.FindDict(name));
      break;
    case 3:
      tree.SetAttributeValue(name, name);
      Require(tree.GetAttributeValue(name) == name.GetString()); // names and texts end at a zero here
      break;
    case 4:
      tree.SetAttributeDoubleValue(name, data[i] / 8.0);
      Require(tree.GetAttributeDoubleValue(name) == data[i] / 8.0);
      break;
    case 5:
      tree.Del(data[i + 1] % (tree.GetLength() + 1));
      break;
    case 6:
      tree.Move(data[i + 1] % (tree.GetLength() + 1), data[i] % (tree.GetLength() + 1));
      break;
    default:
      tree.ReleaseCur();
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  VkDtDictionary tree(L"before", nullptr);
  tree.FindOrAddDict(L"before");
  idp::Fault fault;
  bool dropped = false;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (xml::ReadDictionary(tree, text, fault, dropped)) {
    RoundTrip(tree);
  } else {
    Require(tree.IsEmpty() && tree.GetAttributeNum() == 0 && tree.GetName().IsEmpty());
    Require(!fault.reason.IsEmpty() && fault.offset <= size);
  }
  Change(tree, data, size);
  RoundTrip(tree);
  return 0;
}
