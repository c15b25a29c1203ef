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

VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, const CString& text) {
  return xml::FindItem(part,
                       [&](const VkDtDictItem& item) { return item.GetAttributeValue(attribute) == text; });
}

VkDtDictItem* FindItem(VkDtDictionary* part, const wchar_t* attribute, int number) {
  return xml::FindItem(
      part, [&](const VkDtDictItem& item) { return item.GetAttributeIntValue(attribute) == number; });
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
