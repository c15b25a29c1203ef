// The array that owns what its pointers point to.
#pragma once

#include "plugin/base/containers/VkDynArray.h"
#include "plugin/base/containers/VkOwning.h"

template <class T> class ZP_EXPORT VkDynPArray : public VkOwning<T, VkDynArray<T*>> {
 public:
  using Base = VkOwning<T, VkDynArray<T*>>;
  using Base::Base;
  using Base::operator=;
  VkDynPArray() = default;

  // By the pointed-to values. Null slots keep their places.
  template <std::totally_ordered U = T> void SortEx(bool ascending) {
    if (ascending) {
      this->SortBy(vk::ByValue<vk::Ascending>(), vk::NullSlot());
    } else {
      this->SortBy(vk::ByValue<vk::Descending>(), vk::NullSlot());
    }
  }
};
