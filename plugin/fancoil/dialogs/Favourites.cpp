#include "plugin/fancoil/dialogs/Favourites.h"

#include "plugin/base/DefaultValues.h"

namespace {

constexpr const wchar_t* kListKey = L"空调水路\\风机盘管\\管理器\\常用风机盘管列表";
constexpr wchar_t kNamesApart = L'|';
constexpr wchar_t kEntryEnd = L';';
constexpr int kFirstEntries = 11;

} // namespace

CString fancoil::FavouriteEntry(const CString& model, const CString& maker) {
  return model + CString(kNamesApart) + maker;
}

CFCUEquipment* fancoil::FindFavourite(const CFCUManager& catalogue, const CString& entry) {
  constexpr int behindFirst = 1;
  const int at = entry.Find(kNamesApart, behindFirst);
  return at < 0 ? nullptr : catalogue.GetFCUEquipment(entry.Left(at), entry.Mid(at + 1));
}

// An entry counts once its end is there: what stands behind the last one was cut off.
CStringArray fancoil::ReadFavourites(const CFCUManager& catalogue) {
  CString text;
  ZP::GetDefaultValue(kListKey, text);
  CStringArray entries;
  int begin = 0;
  for (int end = text.Find(kEntryEnd); end >= 0; end = text.Find(kEntryEnd, begin)) {
    const CString entry = text.Mid(begin, end - begin);
    if (FindFavourite(catalogue, entry)) entries.Add(entry);
    begin = end + 1;
  }
  return entries;
}

void fancoil::WriteFavourites(const CStringArray& entries) {
  CString text;
  for (const CString& entry : entries) text += entry + CString(kEntryEnd);
  ZP::SetDefaultValue(kListKey, text);
}

CStringArray fancoil::FirstFavourites(const CFCUManager& catalogue) {
  CStringArray entries;
  for (const CFCUFactory* factory : catalogue.m_arrFactories) {
    if (!factory) continue;
    for (const CFCUEquipment* equipment : factory->m_arrEquipments) {
      if (entries.GetSize() == kFirstEntries) return entries;
      if (equipment) entries.Add(FavouriteEntry(equipment->GetName(), factory->GetName()));
    }
  }
  return entries;
}
