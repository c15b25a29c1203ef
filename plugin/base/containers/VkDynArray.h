// The member of the family for random access: one contiguous block.
#pragma once

#include <cassert>

#include "plugin/base/containers/Block.h"
#include "plugin/base/containers/VkDynArrayBase.h"

// The space size is what the container promises to hold without growing: a length beyond it sets it to the
// length plus the allocation unit, SetLength to exactly the length. The block behind it may be larger, so
// that appending costs constant time whatever the unit. Elements that were never written are T(). The cursor
// walks from -1 to the length and stops at both. InsertCur before the first element inserts at index 0,
// behind the last one at the end.
template <class T> class ZP_EXPORT VkDynArray : public VkDynArrayBase<T> {
 public:
  using Base = VkDynArrayBase<T>;
  using typename Base::Compare;

  explicit VkDynArray(int space = 0, int allocUnit = 10);
  VkDynArray(const VkDynArray& other);
  using Base::operator=;
  VkDynArray& operator=(const VkDynArray& other);

  void ReAllocate(int count) override;
  void SetLength(int count, bool keep) override; // a count equal to the space size changes only the length
  void Reset() override;
  T& GetCurData() override { return At(m_nCursor); }
  bool MoveToFirst() override { return SetCursor(0); }
  bool MoveToNext() override { return SetCursor(m_nCursor + 1); }
  bool MoveToPre() override { return SetCursor(m_nCursor - 1); }
  bool MoveToLast() override { return SetCursor(m_nLength - 1); }
  bool MoveTo(int index) override { return SetCursor(index); }
  T* GetFirst() const override { return m_nLength > 0 ? m_block.Data() : nullptr; }
  T* GetNext(const T* value) const override { return value + 1 == End() ? nullptr : Slot(value) + 1; }
  T* GetPre(const T* value) const override { return value == m_block.Data() ? nullptr : Slot(value) - 1; }
  T* GetLast() const override { return m_nLength > 0 ? End() - 1 : nullptr; }
  T& GetAt(int index) const override { return At(index); }
  void InsertCur(const T& value) override;
  int Append(const T& value) override {
    if (m_nLength == m_nSpaceSize) {
      T added = value; // the argument may be an element, which moves
      EnsureSpace(1);
      *End() = std::move(added);
    } else {
      *End() = value;
    }
    return m_nCursor = m_nLength++;
  }
  bool DelCur() override;
  void Sort(Compare compare) override { SortBy(vk::ByCompare<T>{compare}, vk::NoHoles()); }
  void Sort(bool ascending) override;

  // As in the base, at the speed of the block.
  using Base::Find;
  int Find(const T& value, int from = 0, int to = -1) const;
  int FindDel(const T& value);

  int GetAllocUnit() const { return m_nAllocUnit; }
  void SetAllocUnit(int count) { m_nAllocUnit = std::max(count, 0); }
  int GetSpaceSize() const { return m_nSpaceSize; }
  bool SetSpaceSize(int count); // false for less than the length, which it keeps
  // Takes over a block of count elements made by new T[], in place of the contents.
  void Attach(int count, T* block);
  // Hands out the block, to be freed by delete[], and leaves an empty container. Null when there is none.
  T* Detach();

 protected:
  using Base::m_nCursor;
  using Base::m_nLength;

  template <class Beyond, class IsHole> void SortBy(Beyond beyond, IsHole isHole) {
    vk::SortBlock(m_block.Data(), m_nLength, beyond, isHole);
  }
  template <class Doomed> int DeleteEach(Doomed doomed);
  // Whether SetLength keeps values at all.
  bool KeepsValues(int count, bool keep) const { return keep || count == m_nSpaceSize; }

 private:
  static T* Slot(const T* value) { return const_cast<T*>(value); }
  T* End() const { return m_block.Data() + m_nLength; }
  T& At(int index) const {
    assert(this->IsValidIndex(index));
    return m_block.Data()[index];
  }
  bool SetCursor(int index) {
    m_nCursor = std::clamp(index, -1, m_nLength);
    return this->IsValidIndex(m_nCursor);
  }
  void EnsureSpace(int more); // for so many elements more
  void ChangeLength(int count);

  vk::Block<T> m_block;
  int m_nSpaceSize = 0;
  int m_nAllocUnit;
};

#include "plugin/base/containers/VkDynArray.inl.h"
