#include "plugin/fancoil/WaterDatabase.h"

#include "plugin/base/Folders.h"

namespace fancoil {

CString WaterDatabasePath() {
  return ZP::GetSystemPath() + L"Data\\KTSLDatabase.xml";
}

CString SmallLetters(CString name) {
  name.MakeLower();
  return name;
}

namespace {

template <typename Matches> VkDtDictItem* FirstItem(VkDtDictionary* part, Matches matches) {
  VkDtDictItem* found = nullptr;
  if (!part) return found;
  WalkItems(*part, [&](VkDtDictItem& item) {
    if (matches(item)) found = &item;
    return !found;
  });
  return found;
}

} // namespace

VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, const CString& text) {
  return FirstItem(part, [&](const VkDtDictItem& item) { return item.GetAttributeValue(attribute) == text; });
}

VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, int number) {
  return FirstItem(part,
                   [&](const VkDtDictItem& item) { return item.GetAttributeIntValue(attribute) == number; });
}

bool AppendAttributes(VkDtDictionary* part, const wchar_t* attribute, CStringArray& out) {
  if (!part) return false;
  WalkItems(*part, [&](const VkDtDictItem& item) {
    out.Add(item.GetAttributeValue(attribute));
    return true;
  });
  return true;
}

} // namespace fancoil
