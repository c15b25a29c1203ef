// Told of what happens to one object. Not owned by it; take it away before it dies.
#pragma once

class AcDbObject;
class AcDbObjectId;

class AcDbObjectReactor {
 public:
  virtual ~AcDbObjectReactor() = default;
  // Ahead of the first change while the object is open for write.
  virtual void openedForModify(const AcDbObject*) {}
  // As it is closed after a change, and when undo or redo has changed it.
  virtual void modified(const AcDbObject*) {}
  virtual void erased(const AcDbObject*, bool /*erasing*/) {}
  // As a writer closes it, changed or not.
  virtual void objectClosed(const AcDbObjectId&) {}
  // Undo took back that it was added, or redo repeated it.
  virtual void unappended(const AcDbObject*) {}
  virtual void reappended(const AcDbObject*) {}
  // Its drawing dies.
  virtual void goodbye(const AcDbObject*) {}
};
