// Several entities that are not in the drawing yet, in groups that move and turn as one, are shown as one
// drawable (in a drag, say), and are then committed. It is an entity only so that the host can draw it: it
// enters no drawing itself, and nothing of it is filed.
//
// The order of calls that it is made for: AddEntityToGroup for each entity, SetGroupOrigin, SetPosition and
// SetRotation as often as needed, then AddtoCurrentSpace and GetEntitysObjectID. From AddEntityToGroup to
// Close the entities stay open as they were handed in; they must be newly made or open for write.
#pragma once

#include <cstddef>

#include "plugin/tools/SZPMultiEntityData.h"

class ZP_EXPORT CZPMultiEntity : public AcDbEntity {
 public:
  enum MultiEntityStatus {
    eOk = 0,       // done, or nothing to do
    eFailed = 1,   // the host refused an entity, or the values were none
    eBadIndex = 2, // out of range
    eNoGroups = 3  // there are no groups
  };

  CZPMultiEntity() = default;
  CZPMultiEntity(const CZPMultiEntity& other);
  CZPMultiEntity& operator=(const CZPMultiEntity& other);
  ~CZPMultiEntity() override; // closes all groups

  // Groups count from 0; where -1 is allowed it stands for all groups, one after the other. Siblings live
  // with how the checks of an index differ, so they are to stay as they are.

  // Makes the groups up to the index where they are missing; eBadIndex for a negative one. The entity is
  // shown in the colour that the active scheme gives its layer, in colour 0 where the scheme knows nothing of
  // it. What is no block reference belongs to the group from then on; eFailed for null.
  MultiEntityStatus AddEntityToGroup(AcDbEntity* entity, int index);

  // These take no -1. A negative index, or one above the number of groups, gives eBadIndex (a getter the
  // origin or 0); one that equals the number of groups raises CInvalidArgException.
  //
  // Moves the entities by the old origin less the new one, so that what stood at the new origin comes to
  // stand where the old one was. Position stays.
  MultiEntityStatus SetGroupOrigin(const AcGePoint3d& origin, int index);
  // Moves the entities from the old position to the new one. The origin stays.
  MultiEntityStatus SetPosition(const AcGePoint3d& position, int index);
  // Turns the entities about the group's position, from the old angle to this one, in radians anticlockwise;
  // it is brought to 0 to below 2 pi. Nothing happens for one within 0.001 of the old. eFailed for what is
  // not finite.
  MultiEntityStatus SetRotation(double angle, int index);
  AcGePoint3d GetPosition(int index);
  double GetRotation(int index);

  // These take -1. eNoGroups without groups, else eBadIndex below -1 and from the number of groups on.
  //
  // Adds the entities to the current space and closes the group. When the host refuses one, what was added of
  // this group goes out again, the groups done before stay, and the result is eFailed.
  MultiEntityStatus AddtoCurrentSpace(int index);
  // ids is emptied in any case.
  MultiEntityStatus GetEntitysObjectID(AcArray<AcDbObjectId>& ids, int index);
  // Closes the entities, unless a copy of this object has them as well, and lets go of them; ids, colours and
  // the placement stay. An entity that never entered a drawing is gone when it is closed.
  MultiEntityStatus Close(int index);
  // Close, and ids and placement go as well; the group stays, and so do its colours.
  MultiEntityStatus RemoveGroupEntity(int index);
  // Close, and the group goes; higher indexes move down.
  MultiEntityStatus RemoveGroup(int index);
  int GetSize();

  // Draws each entity with its colour, and what stands for block references with the colours of its own.
  // Always true: nothing depends on a viewport.
  Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;

 private:
  // There is one of them at a time, on the stack or by itself.
  void* operator new[](std::size_t) noexcept { return nullptr; }
  void operator delete[](void*) {}

  // eOk for an index that may stand for one group or, as -1, for all.
  MultiEntityStatus CheckIndex(int index) const;
  // eOk for an index of a setter, which may be the number of groups all the same.
  MultiEntityStatus CheckPlaceIndex(int index) const;
  template <class Work> MultiEntityStatus ForEachGroup(int index, Work work);
  MultiEntityStatus CommitGroup(SZPMultiEntityData& group, int index);

  CZPArray<SZPMultiEntityData, SZPMultiEntityData> Groups;
};
