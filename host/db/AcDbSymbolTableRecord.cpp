#include "host/db/AcDbSymbolTableRecord.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"

#include <algorithm>
#include <iterator>

ACRX_DXF_DEFINE_MEMBERS(AcDbSymbolTableRecord, AcDbObject, "")

Acad::ErrorStatus AcDbSymbolTableRecord::getName(CString& out) const {
  if (!isReadEnabled()) return Acad::eNotOpenForRead;
  out = m_name;
  return Acad::eOk;
}

namespace {

// Names that every drawing must have, and that others count on.
bool isFixedName(std::string_view table, const CString& name) {
  struct Fixed {
    std::string_view table;
    const wchar_t* name;
  };
  static constexpr Fixed fixed[] = {{"LAYER", L"0"},
                                    {"LTYPE", L"ByLayer"},
                                    {"LTYPE", L"ByBlock"},
                                    {"LTYPE", L"Continuous"},
                                    {"BLOCK_RECORD", L"*Model_Space"},
                                    {"BLOCK_RECORD", L"*Paper_Space"}};
  return std::any_of(std::begin(fixed), std::end(fixed), [&](const Fixed& entry) {
    return entry.table == table && name.CompareNoCase(entry.name) == 0;
  });
}

} // namespace

Acad::ErrorStatus AcDbSymbolTableRecord::setName(const wchar_t* newName) {
  const CString wanted = newName;
  if (!isWriteEnabled()) return Acad::eNotOpenForWrite;
  if (wanted == m_name) return Acad::eOk;
  if (!acceptsName(wanted)) return Acad::eInvalidName;
  auto* table = AcDbSymbolTable::cast(ownerId().object());
  if (table) {
    if (isFixedName(table->recordType(), m_name)) return Acad::eInvalidName;
    AcDbObjectId other;
    if (table->getAt(wanted, other) == Acad::eOk && other != objectId()) return Acad::eDuplicateRecordName;
  }
  const bool isCurrentLayer = database() && table && database()->clayer() == objectId();
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  if (table) database()->beforeRename(objectId(), wanted);
  m_name = wanted;
  if (table) {
    table->nameChanged(*this);
    if (isCurrentLayer && database()->header().has("$CLAYER")) {
      AcDbObjectPointer<AcDbHeader> header(database()->headerId(), AcDb::kForWrite);
      if (header) header->setVariable("$CLAYER", DxfRecordEditor::tag(8, dxf::encodeText(m_name)));
    }
  }
  return Acad::eOk;
}

void AcDbSymbolTableRecord::setNameAsRead(const CString& name) {
  m_name = name;
}

bool AcDbSymbolTableRecord::isValidSymbolName(const CString& name) {
  if (name.IsEmpty() || name.GetLength() > 255) return false;
  if (name[0] == L' ' || name[name.GetLength() - 1] == L' ') return false;
  constexpr std::wstring_view forbidden = L"<>/\\\":;?*=`,|";
  return std::none_of(name.View().begin(), name.View().end(),
                      [&](wchar_t c) { return c < 0x20 || forbidden.find(c) != forbidden.npos; });
}

void AcDbSymbolTableRecord::dxfInFields(DxfTags tags, const DxfDecodeContext& context) {
  const CString before = m_name;
  m_name.Empty();
  m_flags = 0;
  bool named = false;
  bool flagged = false;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (tag.code == 2 && !named) {
      m_name = dxf::decodeText(dxf::trimBlanks(tag.value));
      named = true;
    } else if (tag.code == 70 && !flagged) {
      m_flags = static_cast<int>(context.integerIn(tag, -0x8000, 0xFFFF, 0));
      flagged = true;
    }
  }
  // Undo may bring an old name back.
  auto* table = AcDbSymbolTable::cast(ownerId().object());
  if (table && !before.IsEmpty() && before != m_name) {
    table->nameChanged(*this);
    database()->afterRename(objectId());
  }
}

void AcDbSymbolTableRecord::dxfOutFields(DxfRecordEditor& editor) const {
  const auto* table = AcDbSymbolTable::cast(ownerId().object());
  dxfOutEntry(editor, table ? table->recordType() : "", "");
}

void AcDbSymbolTableRecord::dxfOutEntry(DxfRecordEditor& editor, std::string_view type,
                                        std::string_view subclass, int handleCode) const {
  dxfOutHead(editor, type, handleCode);
  editor.subclass("AcDbSymbolTableRecord");
  if (!subclass.empty()) editor.subclass(subclass);
  editor.text(2, m_name);
  editor.integer(70, m_flags);
}
