#include "host/db/AcDbHeader.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbHeader, AcDbObject)

std::vector<DxfTag> AcDbHeader::variable(std::string_view name) const {
  std::vector<DxfTag> tags;
  bool take = false;
  DxfTagReader reader(rawRecord().text());
  for (DxfTag tag; reader.next(tag);) {
    if (tag.code == 9) {
      if (take) break;
      take = dxf::trimBlanks(tag.value) == name;
    } else if (take && tag.code != 999) { // comments may stand anywhere
      tags.push_back(tag);
    }
  }
  return tags;
}

std::optional<double> AcDbHeader::real(std::string_view name) const {
  const auto tags = variable(name);
  return tags.empty() ? std::nullopt : dxf::toReal(tags.front().value);
}

std::optional<long long> AcDbHeader::integer(std::string_view name) const {
  const auto tags = variable(name);
  return tags.empty() ? std::nullopt : dxf::toInteger(tags.front().value);
}

std::optional<CString> AcDbHeader::text(std::string_view name) const {
  const auto tags = variable(name);
  if (tags.empty()) return std::nullopt;
  return dxf::decodeText(tags.front().value);
}

Acad::ErrorStatus AcDbHeader::setVariable(std::string_view name, const std::string& newTags) {
  const CString told = CString::FromUtf8(name.substr(name.starts_with('$') ? 1 : 0));
  if (database()) database()->beforeSettingChange(told);
  const auto status = assertWriteEnabled();
  if (status == Acad::eOk) replaceRawRecord(DxfRecord::own(withVariable(rawRecord().text(), name, newTags)));
  if (database()) database()->afterSettingChange(told, status == Acad::eOk);
  return status;
}

std::string AcDbHeader::withVariable(std::string_view text, std::string_view name,
                                     const std::string& newTags) {
  // The variable's tags reach from the end of its name's line to the next name.
  const char* begin = nullptr;
  const char* const textEnd = text.data() + text.size();
  const char* end = textEnd;
  const char* tagStart = text.data();
  std::string comments;
  DxfTagReader reader(text);
  for (DxfTag tag; reader.next(tag);) {
    const char* tagEnd = tag.value.data() + tag.value.size();
    if (tagEnd < textEnd) ++tagEnd;
    if (begin && tag.code == 9) {
      end = tagStart;
      break;
    }
    if (begin && tag.code == 999) comments += DxfRecordEditor::tag(999, tag.value);
    if (tag.code == 9 && dxf::trimBlanks(tag.value) == name) begin = tagEnd;
    tagStart = tagEnd;
  }
  if (!begin) return std::string(text) + DxfRecordEditor::tag(9, name) + newTags;
  std::string changed(text.data(), begin);
  changed += newTags + comments;
  changed.append(end, textEnd);
  return changed;
}
