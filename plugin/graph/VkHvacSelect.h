// Picks of one entity, and keys that are pressed during a drag.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/resbuf.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT VkHvacSelect {
 public:
  static VkHvacSelect* GetInstance();

  // Asks for one entity that the filter takes; filter may be null. RTNORM (5100) when one was picked, and id
  // is its; RTCAN for Escape and RTERROR when nothing was picked leave id alone.
  int SingleSelectEntity(const CString& prompt, AcDbObjectId& id, const resbuf* filter);

  // From now on each of these letters, separated by blanks, ends a drag by being pressed, in either case.
  // Forgets the key pressed before.
  void StartGetPressKey(const CString& keys);
  void EndGetPressKey();
  // The key pressed since, as pressed; empty when there was none.
  CString GetPressKey() const;

 private:
  VkHvacSelect() = default;
};
