// Takes back and repeats whole commands. The database hands each object over before its first change in a
// command; the history keeps the object's record of that moment. Erased, appended and changed objects are all
// the same to it: a record and whether the object was there.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"
#include "host/db/DxfRecord.h"

#include <cstddef>
#include <deque>
#include <optional>
#include <unordered_set>
#include <vector>

class UndoHistory {
 public:
  explicit UndoHistory(AcDbDatabase& database) : m_database(database) {}

  // Commands may nest: only the outermost counts. A command without changes leaves no trace.
  void beginCommand(const CString& name);
  void endCommand();
  // Ends the outermost command and brings back the state before it.
  void cancelCommand();
  bool isRecording() const { return m_depth > 0; }

  // The names of the commands that undo() and redo() would take, empty when there is none.
  CString undoName() const;
  CString redoName() const;
  // eNotApplicable when there is nothing to take back or a command is running.
  Acad::ErrorStatus undo();
  Acad::ErrorStatus redo();
  void clear();

  // Memory that kept records may use; the oldest commands go first. The latest command always stays.
  void setByteLimit(std::size_t bytes) { m_byteLimit = bytes; }
  std::size_t bytes() const { return m_bytes; }
  std::size_t commandCount() const { return m_done.size(); }

  // From the database.
  void recordBefore(AcDbObject& object);
  void recordAppended(AcDbObject& object);

 private:
  struct Change {
    AcDbObjectId id;
    std::optional<DxfRecord> record; // none for an object that wasn't there
    AcDbObjectId owner;
    bool erased = false;
    bool implicit = false;
    bool appended = false; // the step is what brought the object
  };
  struct Step {
    CString name;
    std::vector<Change> changes;
    std::size_t bytes = 0;
  };

  Step exchange(const Step& step);
  static std::size_t bytesOf(const Step& step);
  void dropOldest();

  AcDbDatabase& m_database;
  std::deque<Step> m_done;
  std::vector<Step> m_undone;
  Step m_current;
  std::unordered_set<AcDbObjectId> m_seen;
  int m_depth = 0;
  std::size_t m_bytes = 0;
  std::size_t m_byteLimit = std::size_t{512} << 20;
};
