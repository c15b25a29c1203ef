// One drawing in memory: its objects by id and handle, its symbol tables, blocks and dictionaries, its header
// variables, its undo history, and the form in which it stood in its file.
#pragma once

#include "host/db/AcDbHeader.h"
#include "host/db/AcDbObject.h"
#include "host/db/DrawingForm.h"
#include "host/db/HandleIndex.h"
#include "host/db/UndoHistory.h"

#include <deque>
#include <memory>
#include <utility>
#include <vector>

class AcDbBlockTable;
class AcDbDatabaseReactor;
class AcDbDictionary;
class AcDbDimStyleTable;
class AcDbLayerTable;
class AcDbLinetypeTable;
class AcDbRegAppTable;
class AcDbSymbolTable;
class AcDbTextStyleTable;
class AcDbUCSTable;
class AcDbViewTable;
class AcDbViewportTable;

class AcDbDatabase {
 public:
  // With buildDefaultDrawing the standard tables and entries exist at once (layer 0, linetypes ByBlock,
  // ByLayer and Continuous, style Standard, application ACAD, model and paper space, the root dictionary), as
  // objects that no file held. Without it the tables are there and empty, for a reader to fill.
  explicit AcDbDatabase(bool buildDefaultDrawing = true);
  ~AcDbDatabase();
  AcDbDatabase(const AcDbDatabase&) = delete;
  AcDbDatabase& operator=(const AcDbDatabase&) = delete;

  // Symbol tables:

  Acad::ErrorStatus getSymbolTable(AcDbBlockTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbDimStyleTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbLayerTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbLinetypeTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbRegAppTable*& table, AcDb::OpenMode mode);
  Acad::ErrorStatus getSymbolTable(AcDbTextStyleTable*& table, AcDb::OpenMode mode);
  AcDbObjectId blockTableId() const;
  AcDbObjectId dimStyleTableId() const;
  AcDbObjectId layerTableId() const;
  AcDbObjectId linetypeTableId() const;
  AcDbObjectId regAppTableId() const;
  AcDbObjectId textStyleTableId() const;
  // The tables in the order of the file.
  const std::vector<AcDbObjectId>& tables() const { return m_tables; }
  std::vector<AcDbObjectId>& tables() { return m_tables; }
  // The table of a record type such as "LAYER", or null.
  AcDbSymbolTable* tableOf(std::string_view type) const;

  AcDbObjectId modelSpaceId() const;
  AcDbObjectId paperSpaceId() const;

  // Registers an application name for extended data, if it isn't yet.
  Acad::ErrorStatus registerApplication(const CString& name);

  // Dictionaries:

  Acad::ErrorStatus getNamedObjectsDictionary(AcDbDictionary*& dictionary, AcDb::OpenMode mode);
  AcDbObjectId namedObjectsDictionaryId() const { return m_namedObjects; }
  void setNamedObjectsDictionaryId(const AcDbObjectId& id) { m_namedObjects = id; }
  // The objects of the OBJECTS section in the order of the file.
  const std::vector<AcDbObjectId>& objects() const { return m_objects; }
  std::vector<AcDbObjectId>& objects() { return m_objects; }

  // Objects:

  // Takes object into the drawing under a new handle (or the one given, which must be free): the database
  // owns it from then on, and it is open for write. eAlreadyInDb when it is in one.
  Acad::ErrorStatus addAcDbObject(AcDbObject* object, const AcDbObjectId& owner = {}, AcDbHandle handle = {});
  // addAcDbObject, and the object is filed in the OBJECTS section.
  Acad::ErrorStatus addToObjects(AcDbObject* object, const AcDbObjectId& owner, AcDbHandle handle = {});
  Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, bool createIfNotFound, const AcDbHandle& handle) const;
  bool hasHandle(AcDbHandle handle) const { return m_byHandle.find(handle) != nullptr; }
  AcDbHandle handseed() const { return AcDbHandle(m_nextHandle); }
  void reserveHandle(AcDbHandle handle);
  std::size_t objectCount() const { return m_stubs.size(); }
  // All objects in the order in which they came, erased ones included.
  const std::deque<AcDbStub>& stubs() const { return m_stubs; }

  // Settings:

  AcDbHeader& header() { return *m_header; }
  const AcDbHeader& header() const { return *m_header; }
  AcDbObjectId headerId() const { return m_header->objectId(); }
  AcDbObjectId clayer() const;
  // eNullObjectId, eNotThatKindOfClass, eWasErased for what is no layer of this drawing, eInvalidInput for a
  // frozen layer: nothing can be drawn on it.
  Acad::ErrorStatus setClayer(const AcDbObjectId& layer);
  // Loads one linetype (or "*" for all) from a linetype file, found as given or in the support folders.
  // eFileNotFound, eUndefinedLineType, eDuplicateRecordName, eFilerError for a damaged file (logged with
  // line).
  Acad::ErrorStatus loadLineTypeFile(const wchar_t* linetype, const wchar_t* file);
  // Folders in which support files such as acad.lin are looked for, for all databases.
  static void setSupportFolders(std::vector<CString> folders);

  // State:

  UndoHistory& undo() { return *m_undo; }
  const UndoHistory& undo() const { return *m_undo; }
  DrawingForm& form() { return m_form; }
  const DrawingForm& form() const { return m_form; }
  // Changed since it was read or since setModified(false).
  bool isModified() const { return m_modified; }
  void setModified(bool modified) { m_modified = modified; }
  // Told by a table record that is about to get another name: what names it takes the new name into its own
  // record, and undo covers that too.
  void beforeRename(const AcDbObjectId& record);
  // Told when undo has brought an old name back, which undo itself brings back where it was named then.
  void afterRename(const AcDbObjectId& record);

  void addReactor(AcDbDatabaseReactor* reactor);
  void removeReactor(AcDbDatabaseReactor* reactor);

  // For objects: told by AcDbObject as it is opened for write, changed and erased.
  void beforeChange(AcDbObject& object);
  void afterChange(AcDbObject& object);
  void afterErase(AcDbObject& object, bool erased);
  void afterAppend(AcDbObject& object);

  // While a file is read, objects without a handle of the file's wait for one: they must not take a number
  // that stands further on in the file. endLoading gives them handles above all others.
  void beginLoading() { m_loading = true; }
  void endLoading();
  // Gives a waiting object the handle that a file has for it. False when the handle is taken or null.
  bool giveHandle(AcDbObject& object, AcDbHandle handle);

  // Adds what every drawing must have and this one lacks, as implicit objects. Returns what was added.
  std::vector<CString> completeStandardEntries();
  // Gives each block that lacks them its begin and end marks, without which it can't be filed.
  void completeBlocks();

 private:
  friend class UndoHistory;
  template <typename Table> Acad::ErrorStatus openTable(Table*& table, AcDb::OpenMode mode);
  template <typename Table> AcDbObjectId tableId() const;
  void createTables();

  std::deque<AcDbStub> m_stubs;
  HandleIndex m_byHandle;
  std::uint64_t m_nextHandle = 1;
  std::vector<AcDbObjectId> m_tables;
  std::vector<AcDbObjectId> m_objects;
  AcDbObjectId m_namedObjects;
  AcDbHeader* m_header = nullptr;
  std::unique_ptr<UndoHistory> m_undo;
  DrawingForm m_form;
  std::vector<AcDbDatabaseReactor*> m_reactors;
  bool m_modified = false;
  bool m_loading = false;
};

// Opening:

// Opens an object: eNullObjectId, eWasErased (unless openErased), eWasOpenForWrite (somebody writes),
// eWasOpenForRead (somebody reads and mode is write), eOnLockedLayer (an entity for write on a locked layer),
// eNotThatKindOfClass for the typed forms. On failure object is null.
Acad::ErrorStatus acdbOpenObject(AcDbObject*& object, const AcDbObjectId& id, AcDb::OpenMode mode,
                                 bool openErased = false);

template <typename T>
Acad::ErrorStatus acdbOpenObject(T*& object, const AcDbObjectId& id, AcDb::OpenMode mode,
                                 bool openErased = false) {
  AcDbObject* opened = nullptr;
  object = nullptr;
  if (id.isValid() && !id.object()->isKindOf(T::desc())) return Acad::eNotThatKindOfClass;
  const auto status = acdbOpenObject(opened, id, mode, openErased);
  if (status == Acad::eOk) object = static_cast<T*>(opened);
  return status;
}

inline Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, const AcDbObjectId& id, AcDb::OpenMode mode,
                                            bool openErased = false) {
  return acdbOpenObject(object, id, mode, openErased);
}

class AcDbEntity;
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, const AcDbObjectId& id, AcDb::OpenMode mode,
                                     bool openErased = false);

// The working drawing:

class AcDbHostApplicationServices {
 public:
  AcDbDatabase* workingDatabase() const { return m_working; }
  void setWorkingDatabase(AcDbDatabase* database) { m_working = database; }

 private:
  AcDbDatabase* m_working = nullptr;
};

AcDbHostApplicationServices* acdbHostApplicationServices();
