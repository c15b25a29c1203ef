// A table: an array of rows of equal length.
#pragma once

#include "plugin/base/containers/VkArray.h"

template <class T> class ZP_EXPORT Vk2dArray : public VkArray<VkArray<T>> {
 public:
  explicit Vk2dArray(int rows = 0, int columns = 0) { ReAllocate(rows, columns, false); }

  // With keep the cells stay as far as they fit; all others are T().
  void ReAllocate(int rows, int columns, bool keep) {
    VkArray<VkArray<T>>::ReAllocate(rows, keep);
    for (int row = 0; row < this->GetLength(); ++row) (*this)[row].ReAllocate(columns, keep);
  }
  void SetAll(const T& value) { // the value of all cells
    for (int row = 0; row < this->GetLength(); ++row) (*this)[row].SetAll(value);
  }
};
