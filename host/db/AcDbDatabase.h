// One drawing in memory: its objects by id and handle, its symbol tables, blocks and dictionaries, its header
// variables, its undo history, and the form in which it stood in its file.
#pragma once

#include "host/db/AcDb.h"
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
class AcDbBlockTableRecord;
class AcDbDatabaseReactor;
class AcDbObjectReactor;
class AcDbDictionary;
class AcDbIdMapping;
class AcGeMatrix3d;
class AcGePoint3d;
class AcDbDimStyleTable;
class AcDbEntity;
class AcDbLayerTable;
class AcDbLinetypeTable;
class AcDbRegAppTable;
class AcDbSymbolTable;
class AcDbTextStyleTable;
class AcDbUCSTable;
class AcDbViewTable;
class AcDbViewportTable;
class ExternalReferences;

class AcDbDatabase {
 public:
  // With buildDefaultDrawing the standard tables and entries exist at once (layer 0, linetypes ByBlock,
  // ByLayer and Continuous, style Standard, application ACAD, model and paper space, the root dictionary), as
  // objects that no file held. Without it the tables are there and empty, for a reader to fill.
  explicit AcDbDatabase(bool buildDefaultDrawing = true);
  ~AcDbDatabase();
  AcDbDatabase(const AcDbDatabase&) = delete;
  AcDbDatabase& operator=(const AcDbDatabase&) = delete;

  // Files:

  // Reads a drawing file into a database made with AcDbDatabase(false) that holds nothing yet
  // (eNotApplicable otherwise, and where no module of the program reads files). eFileNotFound,
  // eFileAccessErr, eDamagedFile; the reason goes to the message log, and the database is to be thrown away.
  // The whole file is read at once and closed, so that the sharing mode has nothing to forbid.
  Acad::ErrorStatus readDwgFile(const wchar_t* fileName, int sharingMode = 32, bool allowConversion = true);
  // Writes the drawing in its version. eFileAccessErr leaves an old file as it was.
  Acad::ErrorStatus saveAs(const wchar_t* fileName);
  // Where the drawing was read from or saved to; empty for a new one. Paths of external references start
  // there.
  const CString& fileName() const { return m_fileName; }
  void setFileName(const CString& path) { m_fileName = path; }
  ExternalReferences& xrefs() const { return *m_xrefs; }

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
  // Takes sub into the drawing as a part of parent; a run of parts gets its end mark. It stays open for
  // write.
  Acad::ErrorStatus addSubEntity(AcDbEntity* sub, AcDbEntity& parent);
  // Marks as erased, or brings back, an object with its sub-entities, on a locked layer too.
  void eraseWhole(AcDbObject& object, bool erasing = true);
  // Whether an insertion of the block that isn't erased is in the drawing.
  bool isBlockReferenced(const AcDbObjectId& block) const;
  Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, bool createIfNotFound, const AcDbHandle& handle) const;
  bool hasHandle(AcDbHandle handle) const { return m_byHandle.find(handle) != nullptr; }
  AcDbHandle handseed() const { return AcDbHandle(m_nextHandle); }
  void reserveHandle(AcDbHandle handle);
  std::size_t objectCount() const { return m_stubs.size(); }
  // All objects in the order in which they came, erased ones included.
  const std::deque<AcDbStub>& stubs() const { return m_stubs; }

  // Copying:

  // Copies entities of this drawing into one of its blocks, with attributes, extension dictionaries and, of a
  // dimension, its picture. Pointers among them lead to the copies, others stay. map tells the copies.
  // eNullObjectId, eWasErased, eWrongDatabase, eNotThatKindOfClass before anything is copied; eSelfReference
  // for an insertion that would make the block contain itself, what came before it is copied then.
  Acad::ErrorStatus deepCloneObjects(const std::vector<AcDbObjectId>& ids, const AcDbObjectId& owner,
                                     AcDbIdMapping& map);
  // The same into a block of another drawing, which gets what the copies name (layers, linetypes, styles,
  // blocks, applications) as far as it lacks it. Anonymous blocks get new numbers there.
  Acad::ErrorStatus wblockCloneObjects(const std::vector<AcDbObjectId>& ids, const AcDbObjectId& owner,
                                       AcDbIdMapping& map,
                                       AcDb::DuplicateRecordCloning duplicates = AcDb::kDrcIgnore);
  // Copies entities into the model space of output, moved so that basePoint comes to stand at its origin.
  Acad::ErrorStatus wblock(AcDbDatabase* output, const std::vector<AcDbObjectId>& ids,
                           const AcGePoint3d& basePoint, AcDb::DuplicateRecordCloning duplicates);
  // The same into a new drawing that the caller owns, null on failure.
  Acad::ErrorStatus wblock(AcDbDatabase*& output, const std::vector<AcDbObjectId>& ids,
                           const AcGePoint3d& basePoint);
  // The contents of a block, its base point at the origin.
  Acad::ErrorStatus wblock(AcDbDatabase*& output, const AcDbObjectId& block);
  // The whole drawing, under the same handles.
  Acad::ErrorStatus wblock(AcDbDatabase*& output) const;
  // Makes the model space of another drawing a new block of this one; "*U" names it by the next free number.
  // Its base point is the other drawing's. eInvalidName, eDuplicateRecordName. The source stays as it was,
  // preserved or not.
  Acad::ErrorStatus insert(AcDbObjectId& block, const wchar_t* name, AcDbDatabase* source,
                           bool preserveSourceDatabase = true);
  // Copies the model space of another drawing into the one of this, transformed.
  Acad::ErrorStatus insert(const AcGeMatrix3d& transform, AcDbDatabase* source,
                           bool preserveSourceDatabase = true);

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
  void beforeRename(const AcDbObjectId& record, const CString& newName);
  // Told when undo has brought an old name back, which undo itself brings back where it was named then.
  void afterRename(const AcDbObjectId& record);

  void addReactor(AcDbDatabaseReactor* reactor);
  void removeReactor(AcDbDatabaseReactor* reactor);

  // For objects: told by AcDbObject as it is opened for write, changed and erased.
  void beforeChange(AcDbObject& object);
  void afterChange(AcDbObject& object);
  void afterErase(AcDbObject& object, bool erased);
  void afterAppend(AcDbObject& object);
  void beforeFirstChange(const AcDbObject& object);
  void afterUnappend(AcDbObject& object, bool again);
  void afterClose(const AcDbObject& object);
  void beforeSettingChange(const CString& name);
  void afterSettingChange(const CString& name, bool success);
  void afterResurrection(const CString& application, const std::vector<AcDbObjectId>& objects);
  using ObjectReactors = std::unordered_map<AcDbObjectId, std::vector<AcDbObjectReactor*>>;
  ObjectReactors& objectReactors() { return m_objectReactors; }

  // All that there are in the program.
  static std::vector<AcDbDatabase*>& allDatabases();
  // Objects of a class that goes are kept without being understood from now on; those that wait for a class
  // that came become objects of it. Nobody may have one open. See acrxBuildClassHierarchy.
  void withdrawClass(const AcRxClass& type);
  void resurrectClasses();
  // Files in the CLASSES of the drawing each custom class that it has objects of.
  void completeClasses();

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
  void completeBlock(AcDbBlockTableRecord& block);

 private:
  friend class UndoHistory;
  template <typename Table> Acad::ErrorStatus openTable(Table*& table, AcDb::OpenMode mode);
  template <typename Table> AcDbObjectId tableId() const;
  void createTables();
  void sayGoodbye();
  template <typename Tell> void tell(Tell tellOne) const;
  template <typename Tell> void tellOf(const AcDbObject& object, Tell tellOne) const;
  void exchangeObject(AcDbStub& stub, std::unique_ptr<AcDbObject> made);
  bool isFresh() const;

  std::deque<AcDbStub> m_stubs;
  HandleIndex m_byHandle;
  std::uint64_t m_nextHandle = 1;
  std::vector<AcDbObjectId> m_tables;
  std::vector<AcDbObjectId> m_objects;
  AcDbObjectId m_namedObjects;
  AcDbHeader* m_header = nullptr;
  std::unique_ptr<UndoHistory> m_undo;
  DrawingForm m_form;
  CString m_fileName;
  std::unique_ptr<ExternalReferences> m_xrefs;
  std::vector<AcDbDatabaseReactor*> m_reactors;
  ObjectReactors m_objectReactors;
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
