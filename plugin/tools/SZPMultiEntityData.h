// One group of a CZPMultiEntity.
#pragma once

#include "host/afx/CArray.h"
#include "host/db/AcDbEntity.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/base/CZPArray.h"
#include "plugin/graph/AcArray.h"

// Copies share the entities, they don't clone them. How many groups hold an entity is counted, so that the
// one that lets go of it last is the one that closes it.
struct ZP_EXPORT SZPMultiEntityData {
  SZPMultiEntityData() = default;
  SZPMultiEntityData(const SZPMultiEntityData& other);
  SZPMultiEntityData& operator=(const SZPMultiEntityData& other);
  ~SZPMultiEntityData(); // lets go of the entities without closing them

  // Into Entities and Colors; into SubEntities.
  void HoldEntity(AcDbEntity* entity, int colour);
  void HoldPart(AcDbEntity* part);
  // Closes those that nobody else holds, Entities first, and empties both arrays.
  void CloseEntities();

  CZPArray<AcDbEntity*, AcDbEntity*> Entities; // as handed in, to be committed
  CZPArray<AcDbEntity*, AcDbEntity*>
      SubEntities;                 // what is drawn for block references: their parts, or a clone
  CArray<int, int> Colors;         // colour index for each of Entities, by position
  AcArray<AcDbObjectId> ObjectIds; // of the entities committed
  AcGePoint3d Origin;              // the group's origin point
  AcGePoint3d Position;            // where the group stands; the centre of its rotation
  double Rotation = 0.0;           // radians, 0 to below 2 pi

 private:
  void CopyFrom(const SZPMultiEntityData& other);
  void LetGo();
};
