// The list with an index of its nodes that owns what its pointers point to.
#pragma once

#include "plugin/base/containers/VkOwning.h"
#include "plugin/base/containers/VkXList.h"

template <class T> class ZP_EXPORT VkPXList : public VkOwning<T, VkXList<T*>> {
 public:
  using Base = VkOwning<T, VkXList<T*>>;
  using Base::Base;
  using Base::operator=;
  VkPXList() = default;
};
