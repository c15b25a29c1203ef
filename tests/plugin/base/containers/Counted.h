// Objects that tell how many of them live and which were deleted, in order.
#pragma once

#include <vector>

#include "plugin/base/containers/VkDynArrayBase.h"

struct Counted {
  explicit Counted(int newId) : id(newId) { ++Alive(); }
  Counted(const Counted& other) : Counted(other.id) {}
  Counted& operator=(const Counted&) = default;
  virtual ~Counted() {
    Deleted().push_back(id);
    --Alive();
  }
  friend bool operator==(const Counted& a, const Counted& b) { return a.id == b.id; }
  friend auto operator<=>(const Counted& a, const Counted& b) { return a.id <=> b.id; }

  static int& Alive() {
    static int alive = 0;
    return alive;
  }
  static std::vector<int>& Deleted() {
    static std::vector<int> deleted;
    return deleted;
  }

  int id;
};

// The ids of an owner's objects, 0 for a null slot.
inline std::vector<int> Ids(const VkDynArrayBase<Counted*>& owner) {
  std::vector<int> ids;
  for (Counted* const* slot = owner.GetFirst(); slot; slot = owner.GetNext(slot))
    ids.push_back(*slot ? (*slot)->id : 0);
  return ids;
}
