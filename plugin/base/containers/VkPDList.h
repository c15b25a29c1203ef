// The doubly linked list that owns what its pointers point to.
#pragma once

#include "plugin/base/containers/VkDList.h"
#include "plugin/base/containers/VkOwning.h"

template <class T> class ZP_EXPORT VkPDList : public VkOwning<T, VkDList<T*>> {
 public:
  using Base = VkOwning<T, VkDList<T*>>;
  using Base::Base;
  using Base::operator=;
  VkPDList() = default;
};
