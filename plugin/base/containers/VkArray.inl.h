// The bodies of VkArray.h, which includes it.
#pragma once

#include "plugin/base/containers/VkArray.h"

template <class T> VkArray<T>& VkArray<T>::operator=(const VkArray& other) {
  if (this == &other) return *this;
  ReAllocate(other.m_nLength, false);
  std::copy_n(other.m_block.Data(), m_nLength, m_block.Data());
  return *this;
}

template <class T> void VkArray<T>::ReAllocate(int count, bool keep) {
  count = std::max(count, 0);
  m_block.Resize(count, keep ? m_nLength : 0);
  m_nLength = count;
}

template <class T> bool VkArray<T>::SetAt(int index, const T& value) {
  if (!IsValidIndex(index)) return false;
  At(index) = value;
  return true;
}

template <class T> bool VkArray<T>::Exchange(int i, int j) {
  if (!IsValidIndex(i) || !IsValidIndex(j)) return false;
  if (i != j) std::swap(At(i), At(j));
  return true;
}

template <class T> int VkArray<T>::Append(const T& value) {
  Insert(m_nLength, value);
  return m_nLength - 1;
}

template <class T> bool VkArray<T>::Insert(int index, const T& value) {
  if (index < 0 || index > m_nLength) return false;
  T inserted = value; // the argument may be an element, which moves
  m_block.Ensure(std::int64_t{m_nLength} + 1, m_nLength);
  m_block.Open(index, m_nLength++);
  At(index) = std::move(inserted);
  return true;
}

template <class T> bool VkArray<T>::Del(int index) {
  if (!IsValidIndex(index)) return false;
  m_block.Close(index, m_nLength--);
  return true;
}

template <class T> bool VkArray<T>::Clip(int& from, int& to) const {
  from = std::max(from, 0);
  if (to < 0 || to >= m_nLength) to = m_nLength - 1;
  return from <= to;
}

template <class T> int VkArray<T>::Find(const T& value, int from, int to) const {
  if (!Clip(from, to)) return -1;
  for (int index = from; index <= to; ++index) {
    if (At(index) == value) return index;
  }
  return -1;
}

template <class T> int VkArray<T>::BFind(const T& value, int from, int to) const {
  if (!Clip(from, to)) return -1;
  const auto order = [&](int index) { return vk::OrderOf(value, At(index)); };
  const vk::Place place = vk::BinarySearch(from, to, order, vk::NoHoles());
  return place.found ? place.index : -1;
}

template <class T> void VkArray<T>::Sort(bool ascending) {
  if (ascending) {
    vk::SortBlock(m_block.Data(), m_nLength, vk::Ascending(), vk::NotANumber());
  } else {
    vk::SortBlock(m_block.Data(), m_nLength, vk::Descending(), vk::NotANumber());
  }
}

template <class T> void VkArray<T>::Reverse(int from, int to) {
  if (Clip(from, to)) std::reverse(m_block.Data() + from, m_block.Data() + to + 1);
}

template <class T> bool VkArray<T>::operator==(const VkArray& other) const {
  return std::equal(m_block.Data(), m_block.Data() + m_nLength, other.m_block.Data(),
                    other.m_block.Data() + other.m_nLength);
}
