// Told of what happens in a drawing. Not owned by the database; remove it before it dies.
#pragma once

class AcDbDatabase;
class AcDbObject;

class AcDbDatabaseReactor {
 public:
  virtual ~AcDbDatabaseReactor() = default;
  virtual void objectAppended(const AcDbDatabase*, const AcDbObject*) {}
  virtual void objectModified(const AcDbDatabase*, const AcDbObject*) {}
  virtual void objectErased(const AcDbDatabase*, const AcDbObject*, bool /*erased*/) {}
  virtual void goodbye(const AcDbDatabase*) {}
};
