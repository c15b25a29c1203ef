#include "host/db/DxfDecodeContext.h"

#include "host/afx/MessageLog.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbTables.h"
#include "host/db/DxfText.h"

namespace {

AcDbObjectId lookUp(AcDbDatabase& database, std::string_view table, const CString& name) {
  AcDbObjectId id;
  // An erased object, decoded again by undo, may name a record that is erased like itself.
  if (const AcDbSymbolTable* symbols = database.tableOf(table)) symbols->getAt(name, id, true);
  return id;
}

// A name that records use and the table lacks gets a record, as other programs do it too.
template <typename Record>
AcDbObjectId define(AcDbDatabase& database, std::string_view tableType, const CString& name) {
  AcDbSymbolTable* table = database.tableOf(tableType);
  if (!table || name.IsEmpty()) return {};
  auto* record = new Record;
  database.addAcDbObject(record, table->objectId());
  record->setImplicit(true);
  record->setNameAsRead(name);
  table->file(*record);
  record->close();
  return record->objectId();
}

CString quoted(const wchar_t* format, const CString& name) {
  CString text;
  text.Format(format, name);
  return text;
}

} // namespace

AcDbObjectId DxfDecodeContext::layer(std::string_view raw) const {
  if (const auto found = m_layers.find(raw); found != m_layers.end() && !found->second.isErased())
    return found->second;
  const CString name = dxf::decodeText(dxf::trimBlanks(raw));
  AcDbObjectId id = lookUp(m_database, "LAYER", name);
  if (id.isNull()) {
    id = define<AcDbLayerTableRecord>(m_database, "LAYER", name);
    if (!id.isNull() && name != L"0") definedMissing({8, raw}, id, quoted(L"图层“%s”未定义，已补建", name));
  }
  m_layers.insert_or_assign(std::string(raw), id);
  return id;
}

AcDbObjectId DxfDecodeContext::linetype(std::string_view raw) const {
  if (const auto found = m_linetypes.find(raw); found != m_linetypes.end() && !found->second.isErased())
    return found->second;
  const CString name = dxf::decodeText(dxf::trimBlanks(raw));
  AcDbObjectId id = lookUp(m_database, "LTYPE", name);
  if (id.isNull()) {
    id = define<AcDbLinetypeTableRecord>(m_database, "LTYPE", name);
    // Old drawings have no entry for the linetypes that every drawing has.
    const bool isStandard = name.CompareNoCase(L"Continuous") == 0 || name.CompareNoCase(L"ByLayer") == 0 ||
                            name.CompareNoCase(L"ByBlock") == 0;
    if (!id.isNull() && !isStandard)
      definedMissing({6, raw}, id, quoted(L"线型“%s”未定义，已补建为实线", name));
  }
  m_linetypes.insert_or_assign(std::string(raw), id);
  return id;
}

AcDbObjectId DxfDecodeContext::textStyle(std::string_view raw) const {
  if (const auto found = m_textStyles.find(raw); found != m_textStyles.end() && !found->second.isErased())
    return found->second;
  const AcDbObjectId id = lookUp(m_database, "STYLE", dxf::decodeText(dxf::trimBlanks(raw)));
  // One that is missing now may still be read.
  if (!id.isNull()) m_textStyles.insert_or_assign(std::string(raw), id);
  return id;
}

AcDbObjectId DxfDecodeContext::block(std::string_view raw) const {
  if (const auto found = m_blocks.find(raw); found != m_blocks.end() && !found->second.isErased())
    return found->second;
  const CString name = dxf::decodeText(dxf::trimBlanks(raw));
  AcDbObjectId id = lookUp(m_database, "BLOCK_RECORD", name);
  if (id.isNull()) {
    id = define<AcDbBlockTableRecord>(m_database, "BLOCK_RECORD", name);
    if (!id.isNull()) definedMissing({2, raw}, id, quoted(L"块“%s”未定义", name));
  }
  m_blocks.insert_or_assign(std::string(raw), id);
  return id;
}

AcDbObjectId DxfDecodeContext::objectByHandle(std::string_view hex) const {
  AcDbObjectId id;
  m_database.getAcDbObjectId(id, false, AcDbHandle::fromHex(hex));
  return id;
}

double DxfDecodeContext::real(const DxfTag& tag, double fallback) const {
  if (const auto value = dxf::toReal(tag.value)) return *value;
  CString what;
  what.Format(L"“%s”不是有限的数，按 %g 处理", dxf::decodeText(tag.value), fallback);
  repaired(tag, what);
  return fallback;
}

long long DxfDecodeContext::integer(const DxfTag& tag, long long fallback) const {
  if (const auto value = dxf::toInteger(tag.value)) return *value;
  CString what;
  what.Format(L"“%s”不是整数，按 %d 处理", dxf::decodeText(tag.value), fallback);
  repaired(tag, what);
  return fallback;
}

long long DxfDecodeContext::integerIn(const DxfTag& tag, long long low, long long high,
                                      long long fallback) const {
  const long long value = integer(tag, fallback);
  if (value >= low && value <= high) return value;
  CString what;
  what.Format(L"%d 超出范围 %d 至 %d，按 %d 处理", value, low, high, fallback);
  repaired(tag, what);
  return fallback;
}

void DxfDecodeContext::definedMissing(const DxfTag& tag, const AcDbObjectId&, const CString& what) const {
  repaired(tag, what);
}

void DxfDecodeContext::repaired(const DxfTag& tag, const CString& what) const {
  CString text;
  text.Format(L"组码 %d：%s", tag.code, what);
  afx::LogMessage(text);
}
