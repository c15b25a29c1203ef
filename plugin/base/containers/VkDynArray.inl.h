// The bodies of VkDynArray.h, which includes it.
#pragma once

#include "plugin/base/containers/VkDynArray.h"

template <class T> VkDynArray<T>::VkDynArray(int space, int allocUnit) {
  SetAllocUnit(allocUnit);
  SetSpaceSize(space);
}

template <class T> VkDynArray<T>::VkDynArray(const VkDynArray& other) : Base() {
  SetAllocUnit(other.m_nAllocUnit);
  this->DeepCopy(other);
}

template <class T> VkDynArray<T>& VkDynArray<T>::operator=(const VkDynArray& other) {
  this->DeepCopy(other);
  return *this;
}

template <class T> void VkDynArray<T>::ChangeLength(int count) {
  m_nLength = count;
  m_nCursor = std::min(m_nCursor, count);
}

template <class T> void VkDynArray<T>::EnsureSpace(int more) {
  const std::int64_t needed = std::int64_t{m_nLength} + more;
  if (needed <= m_nSpaceSize) return;
  constexpr std::int64_t kLimit = std::numeric_limits<int>::max();
  const std::int64_t space = std::min(needed + m_nAllocUnit, kLimit);
  m_block.Ensure(std::max(needed, space), m_nLength);
  // What stood behind the length does not come along.
  std::fill(m_block.Data() + m_nLength, m_block.Data() + space, T());
  m_nSpaceSize = static_cast<int>(space);
}

template <class T> void VkDynArray<T>::ReAllocate(int count) {
  count = std::max(count, 0);
  EnsureSpace(count - m_nLength);
  ChangeLength(count);
}

template <class T> void VkDynArray<T>::SetLength(int count, bool keep) {
  count = std::max(count, 0);
  // Without keep, too, the values stay when the space has that size already.
  if (count != m_nSpaceSize) {
    m_block.Resize(count, keep ? m_nLength : 0);
    m_nSpaceSize = count;
  }
  ChangeLength(count);
}

template <class T> void VkDynArray<T>::Reset() {
  m_block.Take(nullptr, 0);
  m_nSpaceSize = m_nLength = 0;
  m_nCursor = -1;
}

template <class T> void VkDynArray<T>::InsertCur(const T& value) {
  T inserted = value; // the argument may be an element, which moves
  EnsureSpace(1);
  m_nCursor = std::max(m_nCursor, 0);
  m_block.Open(m_nCursor, m_nLength++);
  m_block.Data()[m_nCursor] = std::move(inserted);
}

template <class T> bool VkDynArray<T>::DelCur() {
  if (this->IsOut()) return false;
  m_block.Close(m_nCursor--, m_nLength--);
  return true;
}

template <class T> void VkDynArray<T>::Sort(bool ascending) {
  if (ascending) {
    SortBy(vk::Ascending(), vk::NotANumber());
  } else {
    SortBy(vk::Descending(), vk::NotANumber());
  }
}

template <class T> int VkDynArray<T>::Find(const T& value, int from, int to) const {
  return this->FindBy(value, from, to, [](const T* at) { return at + 1; });
}

template <class T> template <class Doomed> int VkDynArray<T>::DeleteEach(Doomed doomed) {
  T* const data = m_block.Data();
  int kept = 0;
  for (int i = 0; i < m_nLength; ++i) {
    if (doomed(data[i])) continue;
    if (i != kept) data[kept] = std::move(data[i]);
    ++kept;
  }
  const int count = m_nLength - kept;
  while (m_nLength > kept) data[--m_nLength] = T();
  m_nCursor = m_nLength;
  return count;
}

template <class T> int VkDynArray<T>::FindDel(const T& value) {
  const T wanted = value;
  return DeleteEach([&](const T& element) { return element == wanted; });
}

template <class T> bool VkDynArray<T>::SetSpaceSize(int count) {
  if (count < m_nLength) return false;
  if (count != m_nSpaceSize) {
    m_block.Resize(count, m_nLength);
    m_nSpaceSize = count;
  }
  return true;
}

template <class T> void VkDynArray<T>::Attach(int count, T* block) {
  this->Reset();
  m_block.Take(block, std::max(count, 0));
  m_nSpaceSize = m_nLength = m_block.Room();
}

template <class T> T* VkDynArray<T>::Detach() {
  T* const block = m_block.Give();
  VkDynArray::Reset(); // not that of a member that owns what it points to: it goes with the block
  return block;
}
