// Base of everything that a drawing holds. An object's persistent form is its record; typed fields of derived
// classes are decoded from it and merged back into it. Objects are changed only while open for write: that is
// what lets the database keep the state of before for undo.
#pragma once

#include "host/db/AcDb.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/AcRxObject.h"
#include "host/db/AcadStatus.h"
#include "host/db/DxfRecord.h"

#include <memory>
#include <string>
#include <type_traits>

class AcDbObjectReactor;
class DxfDecodeContext;
class DxfRecordEditor;
struct resbuf;

class AcDbObject : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcDbObject);

 public:
  AcDbObject() = default;
  AcDbObject(const AcDbObject&) = delete;
  AcDbObject& operator=(const AcDbObject&) = delete;
  ~AcDbObject() override;

  AcDbObjectId objectId() const { return AcDbObjectId(m_stub); }
  AcDbObjectId id() const { return objectId(); }
  AcDbHandle handle() const { return m_stub ? m_stub->handle : AcDbHandle(); }
  AcDbDatabase* database() const { return m_stub ? m_stub->database : nullptr; }
  AcDbObjectId ownerId() const { return AcDbObjectId(m_owner); }
  // The structure's own modules set the owner when they take an object in.
  void setOwnerId(const AcDbObjectId& owner) { m_owner = owner.stub(); }

  // Ends the opening. An object that never entered a database is not closed but deleted.
  Acad::ErrorStatus close();
  // From the only reader to writer; eAtMaxReaders (others read), eWasOpenForWrite, eNotOpenForRead.
  Acad::ErrorStatus upgradeOpen();
  Acad::ErrorStatus downgradeOpen();
  bool isReadEnabled() const { return !m_stub || m_readers > 0 || m_writing; }
  bool isWriteEnabled() const { return !m_stub || m_writing; }

  // Marks as erased, or brings back. Must be open for write.
  virtual Acad::ErrorStatus erase(bool erasing = true);
  bool isErased() const { return m_erased; }

  // Extended data of one application (null: of all), as a new chain that the caller releases with acutRelRb;
  // null where there is none.
  resbuf* xData(const wchar_t* application = nullptr) const;
  // Replaces the data of the application that the chain begins with (1001); a chain of the 1001 alone takes
  // it away. eRegappIdNotFound when the application is not registered, eXdataSizeExceeded above 16 KB in
  // total, eInvalidInput for a chain that is none. Must be open for write.
  Acad::ErrorStatus setXData(const resbuf* chain);

  // The dictionary of further data of this object; null where it has none.
  AcDbObjectId extensionDictionary() const;
  // Makes one, empty. eAlreadyInDb when there is one, eNoDatabase outside a drawing. Must be open for write.
  Acad::ErrorStatus createExtensionDictionary();
  // Erases it when it is empty; eKeyNotFound when there is none, eObjectIsReferenced when it isn't empty.
  Acad::ErrorStatus releaseExtensionDictionary();
  // For the database's own modules; null takes the entry away.
  void setExtensionDictionary(const AcDbObjectId& dictionary);

  // A copy outside of any drawing that the caller owns: fields, what the host keeps of them without
  // understanding it, extended data and sub-entities, but no handle, owner, reactors or extension dictionary.
  // Null for a class that can't be made. Within a drawing: AcDbDatabase::deepCloneObjects.
  AcRxObject* clone() const;

  // Reactors:

  // eNullObjectPointer, eNoDatabase outside a drawing, eDuplicateKey for one that is there.
  Acad::ErrorStatus addReactor(AcDbObjectReactor* reactor) const;
  // eKeyNotFound for one that is not there.
  Acad::ErrorStatus removeReactor(AcDbObjectReactor* reactor) const;
  // Objects named in this one's record as depending on it. They are filed and not told of anything.
  Acad::ErrorStatus addPersistentReactor(const AcDbObjectId& reactor);
  Acad::ErrorStatus removePersistentReactor(const AcDbObjectId& reactor);
  bool hasPersistentReactor(const AcDbObjectId& reactor) const;

  // Persistent form:

  // The record with
  // all changes of the typed fields merged in.
  const DxfRecord& record() const;
  // Takes a record as the object's state and decodes it.
  void setRecord(DxfRecord record, const DxfDecodeContext& context);
  void setRecord(DxfRecord record, DxfTags tags, const DxfDecodeContext& context);
  // An object that the host made because the format wants it, and that no file held.
  bool isImplicit() const { return m_implicit; }
  void setImplicit(bool implicit) { m_implicit = implicit; }
  // Makes the next record() merge the fields again, because a name that they refer to has changed.
  void invalidateRecord() { m_fieldsChanged = true; }

  // Takes a record that says the same in other words: fields stay, for they hold what is named and no names.
  void replaceRecordText(const DxfRecord& record) { m_record = record; }

  // Opening, for the database:

  Acad::ErrorStatus open(AcDb::OpenMode mode, bool openErased);
  // What was just taken into the drawing is open for write, on a locked layer too.
  void openAsNew() { m_writing = true; }
  void setStub(AcDbStub* stub) { m_stub = stub; }
  // Stands in the drawing where the other one stood, which is to be deleted.
  virtual void takePlaceOf(AcDbObject& other);
  void setErasedFlag(bool erased) { m_erased = erased; }

 protected:
  // Fields to their defaults, then from the tags. Must not fail: what is damaged is reported to the context
  // and left at its default.
  virtual void dxfInFields(DxfTags tags, const DxfDecodeContext& context);
  virtual void dxfOutFields(DxfRecordEditor& editor) const;
  // Fills what clone() has made.
  virtual AcDbObject* cloneInto(std::unique_ptr<AcDbObject> made) const;
  // Called by setters: the object must be open for write, and its record is merged anew when next asked for.
  Acad::ErrorStatus assertWriteEnabled();
  // What most setters do: eInvalidInput for a value that is not valid, eNotOpenForWrite, else the field gets
  // it.
  template <typename T>
  Acad::ErrorStatus assign(T& field, const std::type_identity_t<T>& value, bool valid = true) {
    if (!valid) return Acad::eInvalidInput;
    if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
    field = value;
    return Acad::eOk;
  }
  // Decoding text that stays in the record until someone asks for it.
  const DxfRecord& rawRecord() const { return m_record; }
  void replaceRawRecord(DxfRecord record) { m_record = std::move(record); }
  // The owner's and handle's tags that every record begins with.
  void dxfOutHead(DxfRecordEditor& editor, std::string_view type, int handleCode = 5) const;
  void writeOwner(DxfRecordEditor& editor, AcDbHandle owner) const;

  // Tells of the first change while open, and notes that there was one.
  void noteChange();

 private:
  AcDbStub* m_stub = nullptr;
  AcDbStub* m_owner = nullptr;
  mutable DxfRecord m_record;
  short m_readers = 0;
  bool m_writing = false;
  bool m_erased = false;
  bool m_implicit = false;
  bool m_changedWhileOpen = false;
  mutable bool m_fieldsChanged = false;
};
