// One open drawing: its database, its file name, its locks, and what the editor remembers about it between
// commands.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/db/AcRxObject.h"
#include "host/ed/AcApDocLockMode.h"
#include "host/ed/EdView.h"
#include "host/ge/AcGePoint3d.h"

#include <memory>
#include <unordered_set>
#include <vector>

class AcApDocument : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcApDocument);

 public:
  // An empty file name stands for a drawing that was never saved; the title is then what the user sees.
  AcApDocument(std::unique_ptr<AcDbDatabase> database, CString fileName, CString title);
  ~AcApDocument() override;

  AcDbDatabase* database() const { return m_database.get(); }
  // With its folder; empty for a drawing that was never saved.
  const CString& fileName() const { return m_fileName; }
  void setFileName(const CString& fileName);
  const CString& docTitle() const { return m_title; }
  bool isNamed() const { return !m_fileName.IsEmpty(); }

  // The strongest of the locks that are held, kNotLocked where there is none.
  AcAp::DocLockMode lockMode() const;
  std::size_t lockCount() const { return m_locks.size(); }
  // No command is running and nobody holds a lock.
  bool isQuiescent() const { return m_locks.empty(); }

  // The file on the disk holds more than could be recovered from it: it is copied before a save replaces it.
  bool rescueBeforeSave() const { return m_rescueBeforeSave; }
  void setRescueBeforeSave(bool rescue) { m_rescueBeforeSave = rescue; }

  // What prompts and selections remember.
  struct EditState {
    AcGePoint3d lastPoint;
    std::vector<AcDbObjectId> previousSelection;
    std::vector<AcDbObjectId> pickFirst;
    std::unordered_set<AcDbObjectId> hidden; // entities left out of the picture
    std::vector<EdView> views; // those that were shown, the last one now; empty until one is asked for
  };
  EditState& edit() { return m_edit; }
  const EditState& edit() const { return m_edit; }

 private:
  friend class AcApDocManager;
  std::unique_ptr<AcDbDatabase> m_database;
  CString m_fileName;
  CString m_title;
  std::vector<AcAp::DocLockMode> m_locks;
  bool m_lockIsStep = false; // the first of them began a step of undo
  EditState m_edit;
  bool m_rescueBeforeSave = false;
};
