// The bodies of VkOwning.h, which includes it.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>

#include "plugin/base/containers/VkOwning.h"

template <class T, class Storage> void VkOwning<T, Storage>::DeleteFrom(int index) {
  for (T** slot = this->GetTo(index); slot; slot = this->GetNext(slot)) delete std::exchange(*slot, nullptr);
}

template <class T, class Storage>
VkOwning<T, Storage>& VkOwning<T, Storage>::operator=(const VkOwning& other) {
  DeepCopy(other);
  return *this;
}

template <class T, class Storage>
VkOwning<T, Storage>& VkOwning<T, Storage>::operator=(const VkDynArrayBase<T*>& other) {
  DeepCopy(other);
  return *this;
}

template <class T, class Storage> void VkOwning<T, Storage>::DeepCopy(const VkDynArrayBase<T*>& other) {
  if (this == &other) return;
  std::unordered_set<const T*> shared;
  for (T** slot = other.GetFirst(); slot; slot = other.GetNext(slot)) shared.insert(*slot);
  for (T** slot = this->GetFirst(); slot; slot = this->GetNext(slot)) {
    if (shared.count(*slot) > 0) *slot = nullptr;
  }
  Storage::DeepCopy(other);
}

template <class T, class Storage> void VkOwning<T, Storage>::ReAllocate(int count) {
  DeleteFrom(std::max(count, 0));
  Storage::ReAllocate(count);
}

template <class T, class Storage> void VkOwning<T, Storage>::SetLength(int count, bool keep) {
  DeleteFrom(this->KeepsValues(count, keep) ? std::max(count, 0) : 0);
  Storage::SetLength(count, keep);
}

template <class T, class Storage> void VkOwning<T, Storage>::Reset() {
  DeleteFrom(0);
  Storage::Reset();
}

template <class T, class Storage> bool VkOwning<T, Storage>::DelCur() {
  ReleaseCur();
  return Storage::DelCur();
}

template <class T, class Storage> void VkOwning<T, Storage>::ReleaseCur() {
  if (!this->IsOut()) delete std::exchange(this->GetCurData(), nullptr);
}

template <class T, class Storage> T* VkOwning<T, Storage>::TakeOffCur() {
  if (this->IsOut()) return nullptr;
  T* const object = std::exchange(this->GetCurData(), nullptr);
  this->DelCur();
  return object;
}

template <class T, class Storage> void VkOwning<T, Storage>::Release(int index) {
  if (this->MoveTo(index)) ReleaseCur();
}

template <class T, class Storage> int VkOwning<T, Storage>::PlaceIn(T* object) {
  int index = 0;
  for (T** slot = this->GetFirst(); slot; slot = this->GetNext(slot), ++index) {
    if (*slot) continue;
    *slot = object;
    return index;
  }
  return this->Append(object);
}

template <class T, class Storage> int VkOwning<T, Storage>::GetDataNum() const {
  int count = 0;
  for (T** slot = this->GetFirst(); slot; slot = this->GetNext(slot)) count += *slot != nullptr;
  return count;
}

template <class T, class Storage> bool VkOwning<T, Storage>::IsEmptyData(int index) const {
  T* const* const slot = this->GetTo(index);
  return !slot || !*slot;
}

template <class T, class Storage> int VkOwning<T, Storage>::FindDel(T* object) {
  const int count = this->DeleteEach([&](T*& slot) {
    const bool hit = slot == object;
    if (hit) slot = nullptr;
    return hit;
  });
  if (count > 0) delete object;
  return count;
}

template <class T, class Storage>
template <std::equality_comparable U>
int VkOwning<T, Storage>::FindData(const T& value, int from, int to) const {
  if (!this->Clip(from, to)) return -1;
  T** slot = &this->GetAt(from);
  for (int index = from; index <= to; ++index, slot = this->GetNext(slot)) {
    if (*slot && **slot == value) return index;
  }
  return -1;
}

template <class T, class Storage>
template <std::equality_comparable U>
int VkOwning<T, Storage>::FindDataDel(const T& value) {
  // The argument may be one of the objects: that one goes last.
  std::unique_ptr<T> argument;
  return this->DeleteEach([&](T*& slot) {
    if (!slot || !(*slot == value)) return false;
    std::unique_ptr<T> doomed(std::exchange(slot, nullptr));
    if (doomed.get() == &value) argument = std::move(doomed);
    return true;
  });
}

template <class T, class Storage>
template <vk::Copied U>
int VkOwning<T, Storage>::FindDataOrAppend(const T& value) {
  const int index = FindData(value);
  return index >= 0 ? index : this->Append(new T(value));
}

template <class T, class Storage>
template <vk::Copied U>
int VkOwning<T, Storage>::FindDataOrInsertHead(const T& value) {
  const int index = FindData(value);
  if (index >= 0) return index;
  this->InsertHead(new T(value));
  return 0;
}

template <class T, class Storage>
template <std::totally_ordered U>
int VkOwning<T, Storage>::BFindData(const T& value, int from, int to) const {
  if (!this->Clip(from, to)) return -1;
  const vk::Place place = vk::BinarySearch(
      from, to, [&](int index) { return vk::OrderOf(value, GetPData(index)); },
      [&](int index) { return IsEmptyData(index); });
  return place.found ? place.index : -1;
}

template <class T, class Storage>
template <std::totally_ordered U>
bool VkOwning<T, Storage>::BFindDataTo(const T& value, int from, int to) {
  return this->BFindToBy(
      from, to, [&](T* element) { return vk::OrderOf(value, *element); },
      [&](int index) { return IsEmptyData(index); });
}
