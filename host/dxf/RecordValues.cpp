#include "host/dxf/RecordValues.h"

#include "host/db/DxfText.h"

const DxfTag* dxf::headTag(DxfTags tags, int code) {
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100 || tag.code >= 1000) return nullptr;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (!inGroup && tag.code == code) return &tag;
  }
  return nullptr;
}

CString dxf::nameOf(DxfTags tags) {
  for (const DxfTag& tag : dxfOwnTags(tags))
    if (tag.code == 2) return decodeText(trimBlanks(tag.value));
  return {};
}

CString dxf::shown(std::string_view value) {
  constexpr std::size_t kBytes = 160;
  constexpr int kCharacters = 40;
  return decodeText(trimBlanks(value.substr(0, kBytes))).Left(kCharacters);
}

CString dxf::quoted(const wchar_t* format, const CString& name) {
  CString text;
  text.Format(format, name);
  return text;
}
