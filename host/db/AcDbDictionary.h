// Maps names to objects of the OBJECTS section.
#pragma once

#include "host/db/AcDbDatabase.h"

#include <vector>

class AcDbDictionary : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbDictionary);

 public:
  struct Entry {
    CString name;
    AcDbHandle handle; // kept for entries whose object the drawing lacks
    bool hardOwner = false;
  };
  const std::vector<Entry>& entries() const { return m_entries; }
  unsigned int numEntries() const { return static_cast<unsigned int>(m_entries.size()); }
  // eKeyNotFound; names compare without case.
  Acad::ErrorStatus getAt(const wchar_t* name, AcDbObjectId& id) const;
  template <typename T> Acad::ErrorStatus getAt(const wchar_t* name, T*& object, AcDb::OpenMode mode) const {
    AcDbObjectId id;
    object = nullptr;
    const auto status = getAt(name, id);
    return status == Acad::eOk ? acdbOpenObject(object, id, mode) : status;
  }
  // Files a new object under the name, in place of what stood there (which is erased). The dictionary must be
  // open for write; the object stays open for write.
  Acad::ErrorStatus setAt(const wchar_t* name, AcDbObject* object, AcDbObjectId& id);
  bool has(const wchar_t* name) const;
  // The name under which an object stands here. eKeyNotFound.
  Acad::ErrorStatus nameAt(const AcDbObjectId& id, CString& name) const;
  // eKeyNotFound, eDuplicateKey, eInvalidName for an empty name.
  Acad::ErrorStatus setName(const wchar_t* oldName, const wchar_t* newName);
  // Takes the entry away and erases its object.
  Acad::ErrorStatus remove(const wchar_t* name);

  // For the database's own modules:

  // The entry of an object, or null.
  const Entry* entryOf(AcDbHandle handle) const;
  // Takes an entry in, in place of one of its name. What that one named stays.
  void fileEntry(const Entry& entry);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  std::vector<Entry> m_entries;
  bool m_entriesChanged = false;
};
