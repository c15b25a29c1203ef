// Copies objects with all that belongs to them, within a drawing or from one to another: sub-entities,
// extension dictionaries, and in another drawing what the copies name (layers, linetypes, styles, blocks,
// applications) and point to. Works on records, so that what the host does not understand comes along. The
// operations for callers are deepCloneObjects, wblock and insert of AcDbDatabase.
#pragma once

#include "host/db/AcDb.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/AcadStatus.h"
#include "host/db/DxfRecord.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

class AcDbBlockTableRecord;
class AcDbDictionary;
class AcDbEntity;
class AcDbObject;
class AcDbSymbolTableRecord;

class ObjectCloner {
 public:
  ObjectCloner(AcDbDatabase& from, AcDbDatabase& to, AcDbIdMapping& map,
               AcDb::DuplicateRecordCloning duplicates);

  // The block must not be open. eWasErased; eSelfReference for an insertion that would make the block contain
  // itself.
  Acad::ErrorStatus cloneEntity(const AcDbObjectId& source, const AcDbObjectId& block, bool primary = true);
  // The contents of a block, the erased left out.
  Acad::ErrorStatus cloneContents(const AcDbBlockTableRecord& source, const AcDbObjectId& block);
  // An object of the OBJECTS section under an owner; a dictionary with what it owns.
  AcDbObjectId cloneObject(const AcDbObject& source, const AcDbObjectId& owner);
  // What stands for a table record in the other drawing: that of its name, or a copy.
  AcDbObjectId cloneTableRecord(const AcDbSymbolTableRecord& source);
  // Gives the copies the handles of copies where they hold those of originals. To be called once, at the end.
  void translate();

 private:
  using NameKey = std::pair<std::string, CString>;

  bool isSameDrawing() const { return &m_from == &m_to; }
  DxfRecord renamed(const AcDbObject& source);
  AcDbEntity* makeEntity(const AcDbEntity& source);
  void cloneExtensionDictionary(const AcDbObject& source, AcDbObject& copy);
  AcDbObjectId cloneBlock(const AcDbBlockTableRecord& source);
  void fillBlock(const AcDbBlockTableRecord& source, const AcDbObjectId& copy);
  AcDbObjectId clonePath(const AcDbObject& source, int depth);
  AcDbObjectId targetOf(AcDbHandle handle, int code);
  void note(const AcDbObject& source, const AcDbObjectId& copy, bool cloned, bool primary = false);
  DxfRecord translated(const DxfRecord& record);

  AcDbDatabase& m_from;
  AcDbDatabase& m_to;
  AcDbIdMapping& m_map;
  AcDb::DuplicateRecordCloning m_duplicates;
  std::map<NameKey, CString> m_names; // table and name there, the name here, where they differ
  std::vector<AcDbObjectId> m_copies; // to translate
};
