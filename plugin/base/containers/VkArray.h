// A fixed block with the vocabulary of the container family, but without a cursor. For most purposes
// VkDynArray is the better choice.
#pragma once

#include <cassert>

#include "plugin/base/ZpExport.h"
#include "plugin/base/containers/Block.h"
#include "plugin/base/containers/Order.h"

// A bad index is an error of the caller where nothing else is said. Where a range ends with "to", a to below
// 0 or beyond the end means the last index.
template <class T> class ZP_EXPORT VkArray {
 public:
  using Compare = int (*)(const T& a, const T& b); // above 0 when a belongs behind b

  explicit VkArray(int count = 0) { ReAllocate(count, false); }
  VkArray(const VkArray& other) { *this = other; }
  VkArray& operator=(const VkArray& other);
  virtual ~VkArray() = default;

  // Sets the length. With keep the values stay as far as they fit; all others are T().
  void ReAllocate(int count, bool keep);
  void Reset() { ReAllocate(0, false); }

  int GetLength() const { return m_nLength; }
  int GetMaxIndex() const { return m_nLength - 1; }
  bool IsEmpty() const { return m_nLength == 0; }
  bool IsValidIndex(int index) const { return index >= 0 && index < m_nLength; }
  T* GetDataBuffer() const { return m_block.Data(); } // null when there is none
  const T& GetAt(int index) const { return At(index); }
  bool SetAt(int index, const T& value); // false for a bad index
  T& operator[](int index) { return At(index); }
  const T& operator[](int index) const { return At(index); }
  void SetAll(const T& value) { std::fill_n(m_block.Data(), m_nLength, T(value)); }
  bool Exchange(int i, int j); // swaps two values; false for a bad index

  int Append(const T& value);                                 // the new index
  bool Insert(int index, const T& value);                     // 0 to the length; false for any other
  bool Del(int index);                                        // false for a bad index
  int Find(const T& value, int from = 0, int to = -1) const;  // the first index, or -1
  int BFind(const T& value, int from = 0, int to = -1) const; // on ascending contents; -1 when absent
  void Sort(Compare compare) {
    vk::SortBlock(m_block.Data(), m_nLength, vk::ByCompare<T>{compare}, vk::NoHoles());
  }
  void Sort(bool ascending); // as that of VkDynArray
  void Reverse(int from = 0, int to = -1);

  bool operator==(const VkArray& other) const;
  bool operator!=(const VkArray& other) const { return !(*this == other); }

 private:
  T& At(int index) const {
    assert(IsValidIndex(index));
    return m_block.Data()[index];
  }
  bool Clip(int& from, int& to) const;

  vk::Block<T> m_block;
  int m_nLength = 0;
};

#include "plugin/base/containers/VkArray.inl.h"
