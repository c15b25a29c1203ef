// The growing array of the whole system. An index or count out of range raises CInvalidArgException.
// An array of pointers never frees what they point to.
#pragma once

#include <limits>

#include "host/afx/CInvalidArgException.h"
#include "host/afx/ElementStorage.h"

template <class TYPE, class ARG_TYPE = const TYPE&> class CArray {
 public:
  using value_type = TYPE;
  using iterator = TYPE*;
  using const_iterator = const TYPE*;

  CArray() = default;
  CArray(const CArray& other) { Copy(other); }
  CArray(CArray&& other) noexcept : m_growBy(other.m_growBy) { m_storage.Swap(other.m_storage); }
  CArray& operator=(const CArray& other) {
    Copy(other);
    return *this;
  }
  CArray& operator=(CArray&& other) noexcept {
    m_storage.Swap(other.m_storage);
    std::swap(m_growBy, other.m_growBy);
    return *this;
  }

  int GetSize() const { return m_storage.Size(); }
  int GetCount() const { return GetSize(); }
  int GetUpperBound() const { return GetSize() - 1; }
  bool IsEmpty() const { return GetSize() == 0; }

  // New elements are value-initialised. Size 0 frees the memory. growBy 1 or more is the number of elements
  // by which the memory grows from now on; 0 leaves it to the array (an eighth, at least 4 and at most 1024
  // elements); -1 changes nothing.
  void SetSize(int size, int growBy = -1) {
    if (size < 0) AfxThrowInvalidArgException();
    if (growBy >= 0) m_growBy = growBy;
    if (size == 0) {
      m_storage.Free();
    } else if (size <= GetSize()) {
      m_storage.Shrink(size);
    } else {
      if (size > m_storage.Capacity()) m_storage.Reallocate(GrownCapacity(size));
      m_storage.Extend(size);
    }
  }
  void RemoveAll() { SetSize(0); }
  // Gives back memory beyond the elements.
  void FreeExtra() {
    if (m_storage.Capacity() == GetSize()) return;
    if (IsEmpty())
      m_storage.Free();
    else
      m_storage.Reallocate(GetSize());
  }

  const TYPE& GetAt(int index) const { return m_storage.Data()[Checked(index)]; }
  TYPE& GetAt(int index) { return m_storage.Data()[Checked(index)]; }
  const TYPE& ElementAt(int index) const { return GetAt(index); }
  TYPE& ElementAt(int index) { return GetAt(index); }
  const TYPE& operator[](int index) const { return GetAt(index); }
  TYPE& operator[](int index) { return GetAt(index); }
  void SetAt(int index, ARG_TYPE value) { GetAt(index) = value; }
  // Null while the array is empty and has no memory.
  const TYPE* GetData() const { return m_storage.Data(); }
  TYPE* GetData() { return m_storage.Data(); }

  // Grows the array when the index lies at its end or beyond.
  void SetAtGrow(int index, ARG_TYPE value) {
    if (index < 0 || index == kMost) AfxThrowInvalidArgException();
    if (index < GetSize()) {
      m_storage.Data()[index] = value;
      return;
    }
    TYPE copy(value); // the value may stand in this array, whose memory moves
    SetSize(index + 1);
    m_storage.Data()[index] = std::move(copy);
  }
  int Add(ARG_TYPE value) { // the new element's index
    const int index = GetSize();
    SetAtGrow(index, value);
    return index;
  }
  int Append(const CArray& other) { // the index of the first new element
    const int first = GetSize();
    const int count = other.GetSize();
    if (count == 0) return first;
    if (count > kMost - first) AfxThrowInvalidArgException();
    SetSize(first + count);
    std::copy_n(other.GetData(), count, GetData() + first);
    return first;
  }
  void Copy(const CArray& other) {
    if (this == &other) return;
    SetSize(other.GetSize());
    std::copy_n(other.GetData(), other.GetSize(), GetData());
  }

  // Opens a gap of count elements before index and fills it with copies of value. An index beyond the end
  // grows the array first.
  void InsertAt(int index, ARG_TYPE value, int count = 1) {
    if (index < 0 || count < 0) AfxThrowInvalidArgException();
    if (count == 0) return;
    const TYPE copy(value); // the value may stand in this array, whose elements move
    OpenGap(index, count);
    std::fill_n(GetData() + index, count, copy);
  }
  void InsertAt(int index, const CArray& other) {
    if (index < 0) AfxThrowInvalidArgException();
    if (other.IsEmpty()) return;
    if (this == &other) {
      InsertAt(index, CArray(other));
      return;
    }
    OpenGap(index, other.GetSize());
    std::copy_n(other.GetData(), other.GetSize(), GetData() + index);
  }
  void RemoveAt(int index, int count = 1) {
    if (index < 0 || count < 0 || index > GetSize() || count > GetSize() - index)
      AfxThrowInvalidArgException();
    if (count == 0) return;
    std::move(GetData() + index + count, GetData() + GetSize(), GetData() + index);
    m_storage.Shrink(GetSize() - count);
  }

  const TYPE* begin() const { return GetData(); }
  const TYPE* end() const { return GetData() + GetSize(); }
  TYPE* begin() { return GetData(); }
  TYPE* end() { return GetData() + GetSize(); }

 private:
  static constexpr int kMost = std::numeric_limits<int>::max(); // elements

  int Checked(int index) const {
    if (index < 0 || index >= GetSize()) AfxThrowInvalidArgException();
    return index;
  }

  int GrownCapacity(int wanted) const {
    const int step = m_growBy > 0 ? m_growBy : std::clamp(GetSize() / 8, 4, 1024);
    if (m_storage.Capacity() == 0) return std::max(wanted, m_growBy);
    return std::max(wanted, m_storage.Capacity() + std::min(step, kMost - m_storage.Capacity()));
  }

  // Makes count value-initialised elements at index; those from index on move up.
  void OpenGap(int index, int count) {
    const int oldSize = GetSize();
    if (count > kMost - std::max(oldSize, index)) AfxThrowInvalidArgException();
    SetSize(std::max(oldSize, index) + count);
    if (index >= oldSize) return;
    TYPE* gap = GetData() + index;
    std::move_backward(gap, GetData() + oldSize, GetData() + oldSize + count);
    for (int i = 0; i < count; ++i) gap[i] = TYPE();
  }

  afx::ElementStorage<TYPE> m_storage;
  int m_growBy = 0;
};
