// The four load figures of a room, in W, each with the group under which a drawing file holds it.
// docs/formats/rooms.md describes the other groups.
#pragma once

struct HvacSpaceLoads {
  double totalHeat = 0.0;
  double totalCool = 0.0;
  double winterMost = 0.0;
  double summerMost = 0.0;
};

struct HvacSpaceLoadGroup {
  int code;
  double HvacSpaceLoads::*figure;
};

inline constexpr HvacSpaceLoadGroup kHvacSpaceLoadGroups[] = {
    {41, &HvacSpaceLoads::totalHeat},
    {42, &HvacSpaceLoads::totalCool},
    {43, &HvacSpaceLoads::winterMost},
    {44, &HvacSpaceLoads::summerMost},
};
