// Someone who sees the entities of model space while the rest of the drawing is still being read, such as a
// canvas that makes their picture meanwhile.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <span>

class AcDbBlockTableRecord;

class EntityWatcher {
 public:
  virtual ~EntityWatcher() = default;

  // How many entities it wants to be told of at once.
  virtual std::size_t together() const = 0;
  // These entities of the space are read whole, with what belongs to them, in the order of the file. Until
  // entitiesEnd any thread may look at them, at the tables' records that they refer to and into blocks that
  // are no spaces, and at nothing else of the drawing. An object without a handle is not finished: it must
  // not be asked for its record.
  virtual void entitiesRead(const AcDbBlockTableRecord& space, std::span<const AcDbObjectId> entities) = 0;
  // From here on nobody else may look at the drawing before it is read.
  virtual void entitiesEnd() = 0;
  // Tables, blocks or header come after the entities: what was seen of these may be another now.
  virtual void groundChanged() = 0;
};
