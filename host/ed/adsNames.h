// Entities and selection sets as the numbers that ads functions hand about. A name is only valid while its
// drawing is open.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"

using ads_name = long long[2];

inline void ads_name_clear(ads_name name) {
  name[0] = name[1] = 0;
}
inline void ads_name_set(const long long* from, long long* to) {
  to[0] = from[0];
  to[1] = from[1];
}
inline bool ads_name_nil(const long long* name) {
  return name[0] == 0 && name[1] == 0;
}
inline bool ads_name_equal(const long long* a, const long long* b) {
  return a[0] == b[0] && a[1] == b[1];
}

// eInvalidInput for a name that is none of an entity of an open drawing; id is null then.
Acad::ErrorStatus acdbGetObjectId(AcDbObjectId& id, const long long* name);
// eNullObjectId.
Acad::ErrorStatus acdbGetAdsName(long long* name, const AcDbObjectId& id);
