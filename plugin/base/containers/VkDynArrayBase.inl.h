// The bodies of VkDynArrayBase.h, which includes it.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "plugin/base/containers/VkDynArrayBase.h"

template <class T> T& VkDynArrayBase<T>::operator[](int index) {
  if (index >= m_nLength) ReAllocate(index + 1);
  MoveTo(index);
  return GetCurData();
}

template <class T> void VkDynArrayBase<T>::Insert(int index, const T& value) {
  MoveTo(index);
  InsertCur(value);
}

template <class T> int VkDynArrayBase<T>::Append(const T& value) {
  MoveTo(m_nLength);
  InsertCur(value);
  return m_nCursor;
}

template <class T> bool VkDynArrayBase<T>::Move(int from, int to) {
  if (!IsValidIndex(from) || to < 0 || to > m_nLength || to == from || to == from + 1) return false;
  const T value = GetAt(from);
  Insert(to, value);
  MoveTo(from < to ? from : from + 1);
  SetCurData(T()); // a member that owns what it points to must not delete it with the old place
  DelCur();
  return MoveTo(from < to ? to - 1 : to);
}

template <class T> bool VkDynArrayBase<T>::Exchange(int i, int j) {
  T* const a = GetTo(i);
  T* const b = GetTo(j);
  if (!a || !b) return false;
  if (a != b) std::swap(*a, *b);
  return true;
}

template <class T> bool VkDynArrayBase<T>::Clip(int& from, int& to) const {
  from = std::max(from, 0);
  if (to < 0 || to >= m_nLength) to = m_nLength - 1;
  return from <= to;
}

template <class T>
template <class Next>
int VkDynArrayBase<T>::FindBy(const T& value, int from, int to, Next next) const {
  if (!Clip(from, to)) return -1;
  const T* at = &GetAt(from);
  for (int index = from;; ++index, at = next(at)) {
    if (*at == value) return index;
    if (index == to) return -1;
  }
}

template <class T> int VkDynArrayBase<T>::Find(const T& value, int from, int to) const {
  return FindBy(value, from, to, [this](const T* at) { return GetNext(at); });
}

template <class T> int VkDynArrayBase<T>::Find(const T& value, VkQuene<long>& hits, int from, int to) const {
  if (!Clip(from, to)) return 0;
  const int before = hits.GetLength();
  const T* at = &GetAt(from);
  for (int index = from; index <= to; ++index, at = GetNext(at)) {
    if (*at == value) hits.Append(index);
  }
  return hits.GetLength() - before;
}

template <class T> bool VkDynArrayBase<T>::FindTo(const T& value, int from) {
  const int index = Find(value, from);
  return index >= 0 && MoveTo(index);
}

template <class T> template <class Doomed> int VkDynArrayBase<T>::DeleteEach(Doomed doomed) {
  int count = 0;
  for (MoveToFirst(); !IsOut(); MoveToNext()) {
    if (!doomed(GetCurData())) continue;
    DelCur();
    ++count;
  }
  return count;
}

template <class T> int VkDynArrayBase<T>::FindDel(const T& value) {
  const T wanted = value; // the argument may be one of those that go
  return DeleteEach([&](const T& element) { return element == wanted; });
}

template <class T> int VkDynArrayBase<T>::FindOrAppend(const T& value) {
  const int index = Find(value);
  return index >= 0 ? index : Append(value);
}

template <class T> int VkDynArrayBase<T>::FindOrInsertHead(const T& value) {
  const int index = Find(value);
  if (index >= 0) return index;
  InsertHead(value);
  return 0;
}

template <class T> int VkDynArrayBase<T>::BFind(const T& value, int from, int to) const {
  if (!Clip(from, to)) return -1;
  const auto order = [&](int index) { return vk::OrderOf(value, GetAt(index)); };
  const vk::Place place = vk::BinarySearch(from, to, order, vk::NoHoles());
  return place.found ? place.index : -1;
}

template <class T>
template <class Order, class IsHole>
bool VkDynArrayBase<T>::BFindToBy(int from, int to, Order order, IsHole isHole) {
  if (!Clip(from, to)) {
    MoveTo(from);
    return false;
  }
  const auto orderAt = [&](int index) {
    MoveTo(index);
    return order(GetCurData());
  };
  const vk::Place place = vk::BinarySearch(from, to, orderAt, isHole);
  MoveTo(place.index);
  return place.found;
}

template <class T> bool VkDynArrayBase<T>::BFindTo(const T& value, int from, int to) {
  return BFindToBy(
      from, to, [&](const T& element) { return vk::OrderOf(value, element); }, vk::NoHoles());
}

template <class T> bool VkDynArrayBase<T>::SortInto(const T& value, bool allowDuplicate) {
  if (BFindTo(value)) {
    if (!allowDuplicate) return false;
    while (!IsOut() && GetCurData() == value) MoveToNext();
  }
  InsertCur(value);
  return true;
}

template <class T> void VkDynArrayBase<T>::Refill(int count) {
  const int cursor = m_nCursor;
  SetLength(0, false); // a member that owns what it points to deletes all, whatever the new length
  SetLength(count, false);
  MoveTo(cursor);
}

template <class T> void VkDynArrayBase<T>::DeepCopy(const VkDynArrayBase& other) {
  if (this == &other) return;
  Refill(other.m_nLength);
  T* to = GetFirst();
  for (const T* from = other.GetFirst(); from; from = other.GetNext(from), to = GetNext(to)) *to = *from;
}

template <class T> void VkDynArrayBase<T>::Reverse(int from, int to) {
  if (!Clip(from, to)) return;
  std::vector<T*> slice; // a singly linked list has no cheap way back
  slice.reserve(static_cast<std::size_t>(to - from + 1));
  T* at = &GetAt(from);
  for (int index = from; index <= to; ++index, at = GetNext(at)) slice.push_back(at);
  for (std::size_t i = 0; i < slice.size() / 2; ++i) std::swap(*slice[i], *slice[slice.size() - 1 - i]);
}

template <class T> void VkDynArrayBase<T>::SetAll(const T& value) {
  const T written = value; // the argument may be an element
  for (T* at = GetFirst(); at; at = GetNext(at)) *at = written;
}

template <class T> void VkDynArrayBase<T>::CopySlice(int from, int count, VkDynArrayBase& out) const {
  T* at = count > 0 ? &GetAt(from) : nullptr;
  if (&out == this) { // the slice moves to the front of itself
    T* to = out.GetFirst();
    for (int i = 0; i < count; ++i, at = GetNext(at), to = GetNext(to)) {
      if (at != to) std::swap(*to, *at); // and what is dropped to the end, for a member that owns it
    }
    out.SetLength(count, true);
    return;
  }
  out.Refill(count);
  T* to = out.GetFirst();
  for (int i = 0; i < count; ++i, at = GetNext(at), to = out.GetNext(to)) *to = *at;
}

template <class T> void VkDynArrayBase<T>::Left(int count, VkDynArrayBase& out) const {
  CopySlice(0, std::clamp(count, 0, m_nLength), out);
}

template <class T> void VkDynArrayBase<T>::Right(int count, VkDynArrayBase& out) const {
  count = std::clamp(count, 0, m_nLength);
  CopySlice(m_nLength - count, count, out);
}

template <class T> void VkDynArrayBase<T>::Mid(int from, int to, VkDynArrayBase& out) const {
  CopySlice(from, Clip(from, to) ? to - from + 1 : 0, out);
}

template <class T> VkDynArrayBase<T>& VkDynArrayBase<T>::operator<<(const T& value) {
  Append(value);
  return *this;
}

template <class T> VkDynArrayBase<T>& VkDynArrayBase<T>::operator<<(const VkDynArrayBase& other) {
  if (this == &other) { // appending to itself may move the values under the walk
    std::vector<T> values;
    for (const T* at = GetFirst(); at; at = GetNext(at)) values.push_back(*at);
    for (const T& value : values) Append(value);
    return *this;
  }
  for (const T* at = other.GetFirst(); at; at = other.GetNext(at)) Append(*at);
  return *this;
}

template <class T> VkDynArrayBase<T>& VkDynArrayBase<T>::operator=(const VkDynArrayBase& other) {
  DeepCopy(other);
  return *this;
}

template <class T> bool VkDynArrayBase<T>::operator==(const VkDynArrayBase& other) const {
  if (m_nLength != other.m_nLength) return false;
  const T* b = other.GetFirst();
  for (const T* a = GetFirst(); a; a = GetNext(a), b = other.GetNext(b)) {
    if (!(*a == *b)) return false;
  }
  return true;
}
