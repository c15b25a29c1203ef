// An entry of a symbol table: an object with a name that is unique in its table, compared without case.
#pragma once

#include "host/db/AcDbObject.h"

class AcDbSymbolTable;

class AcDbSymbolTableRecord : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbSymbolTableRecord);

 public:
  // The name without copying, for the host's own modules.
  const CString& name() const { return m_name; }
  Acad::ErrorStatus getName(CString& name) const;
  // eInvalidName for an empty or forbidden name (see isValidSymbolName) and for a record whose name every
  // drawing must have (layer 0, the standard linetypes, the two spaces), eDuplicateRecordName when another
  // record of the table has it. The old name stays then.
  Acad::ErrorStatus setName(const wchar_t* name);
  // The flags of group 70.
  int flags() const { return m_flags; }
  bool isDependent() const { return (m_flags & 16) != 0; }

  // A name as a file has it, without the checks of setName, for the database's own modules.
  void setNameAsRead(const CString& name);

  // Whether a name may stand in a table: not empty, no control character, none of <>/\":;?*=`,| and not over
  // 255 characters. Names that files already have are taken as they come.
  static bool isValidSymbolName(const CString& name);

  // What a table asks of a record that is being added, and tells it when it is.
  virtual Acad::ErrorStatus beforeAdding(AcDbSymbolTable&) { return Acad::eOk; }
  virtual void afterAdding() {}

 protected:
  // Whether setName may give the record this name.
  virtual bool acceptsName(const CString& name) const { return isValidSymbolName(name); }
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;
  // Head, table entry marker, own marker, name and flags, for derived classes to go on behind.
  void dxfOutEntry(DxfRecordEditor& editor, std::string_view type, std::string_view subclass,
                   int handleCode = 5) const;
  void setFlag(int bit, bool on) { m_flags = on ? m_flags | bit : m_flags & ~bit; }
  bool flag(int bit) const { return (m_flags & bit) != 0; }

 private:
  CString m_name;
  int m_flags = 0;
};
