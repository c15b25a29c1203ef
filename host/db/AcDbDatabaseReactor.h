// Told of what happens in a drawing. Not owned by the database; remove it before it dies.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <vector>

class AcDbDatabaseReactor {
 public:
  virtual ~AcDbDatabaseReactor() = default;
  virtual void objectAppended(const AcDbDatabase*, const AcDbObject*) {}
  // Undo took back that the object was added, or redo repeated it.
  virtual void objectUnAppended(const AcDbDatabase*, const AcDbObject*) {}
  virtual void objectReAppended(const AcDbDatabase*, const AcDbObject*) {}
  // Ahead of the first change while an object is open for write.
  virtual void objectOpenedForModify(const AcDbDatabase*, const AcDbObject*) {}
  // As an object is closed after a change, and when undo or redo has changed it.
  virtual void objectModified(const AcDbDatabase*, const AcDbObject*) {}
  virtual void objectErased(const AcDbDatabase*, const AcDbObject*, bool /*erased*/) {}
  // A header variable, by its name without the "$".
  virtual void headerSysVarWillChange(const AcDbDatabase*, const wchar_t* /*name*/) {}
  virtual void headerSysVarChanged(const AcDbDatabase*, const wchar_t* /*name*/, bool /*success*/) {}
  // A plug-in brought the classes of objects that had been kept without being understood.
  virtual void proxyResurrectionCompleted(const AcDbDatabase*, const wchar_t* /*application*/,
                                          const std::vector<AcDbObjectId>& /*objects*/) {}
  virtual void goodbye(const AcDbDatabase*) {}
};
