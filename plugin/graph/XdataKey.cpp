#include "plugin/graph/XdataKey.h"

#include <algorithm>
#include <cstdint>

#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/DrawingForm.h"
#include "plugin/graph/EncodedLength.h"

namespace {

constexpr const wchar_t* kCarrierPrefix = L"ZP$";
constexpr const wchar_t* kHostPrefix = L"ACAD";
constexpr int kNameBytes = 255;
// Up to release 14 a name has 31 bytes, and of ASCII only letters, digits and three signs.
constexpr const char* kFirstWithLongNames = "AC1015";
constexpr int kOldNameBytes = 31;

bool BeginsWith(const CString& key, const CString& prefix) {
  return key.Left(prefix.GetLength()).CompareNoCase(prefix) == 0;
}

bool IsOldNameCharacter(wchar_t c) {
  return c >= 0x80 || (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
         c == L'$' || c == L'_' || c == L'-';
}

bool IsOrdinary(const CString& key) {
  if (!AcDbSymbolTableRecord::isValidSymbolName(key)) return false;
  if (BeginsWith(key, kCarrierPrefix) || BeginsWith(key, kHostPrefix)) return false;
  CString trimmed = key;
  trimmed.Trim(); // programs drop blanks at the ends of names
  if (trimmed != key) return false;
  for (const wchar_t c : key.View())
    if (c >= 0xD800 && c < 0xE000) return false; // bytes that are no text
  return true;
}

} // namespace

bool xdata::IsApplicationName(const CString& key, const DrawingForm& form) {
  if (!IsOrdinary(key)) return false;
  const bool old = form.version < kFirstWithLongNames;
  const int limit = old ? kOldNameBytes : kNameBytes;
  if (old && !std::all_of(key.View().begin(), key.View().end(), IsOldNameCharacter)) return false;
  if (key.GetLength() * kMostBytes <= limit) return true; // whatever they are, as for nearly every key
  int bytes = 0;
  for (const wchar_t c : key.View()) bytes += EncodedLength(c, form);
  return bytes <= limit;
}

bool xdata::IsApplicationNameAnywhere(const CString& key) {
  DrawingForm newest;
  newest.version = "AC1032";
  return IsApplicationName(key, newest);
}

CString xdata::CarrierName(const CString& key) {
  std::uint64_t hash = 0xCBF29CE484222325u; // FNV-1a: short, and the same on every machine
  for (const char byte : key.ToUtf8()) {
    hash ^= static_cast<unsigned char>(byte);
    hash *= 0x100000001B3u;
  }
  CString name;
  name.Format(L"%s%08X%08X", kCarrierPrefix, static_cast<std::uint32_t>(hash >> 32),
              static_cast<std::uint32_t>(hash));
  return name;
}
