// What the owning members of the family add to an array or list of pointers: they delete what they point to.
#pragma once

#include <concepts>
#include <unordered_set>

#include "plugin/base/containers/VkDynArrayBase.h"

namespace vk {
template <class T>
concept Copied = std::equality_comparable<T> && std::copy_constructible<T>;
} // namespace vk

// The pointed-to objects are deleted through T, whose destructor is virtual where they are of derived
// classes. Null slots are legal. An object goes with its slot (DelCur, a shrinking length, Reset, the
// destructor) or before it (Release); the TakeOff forms hand it to the caller instead. Writing another
// pointer into a slot deletes nothing. A copy shares the objects: before the first of both is destroyed or
// emptied, the other must let go of them (TakeOff, or null in its slots). Assigning deletes what was held
// before and isn't shared. Sort by pointers compares addresses; what is meant is nearly always Sort by
// values.
template <class T, class Storage> class ZP_EXPORT VkOwning : public Storage {
 public:
  using Storage::Storage;
  using ValueCompare = int (*)(const T& a, const T& b); // above 0 when a belongs behind b
  VkOwning() = default;
  VkOwning(const VkOwning& other) : Storage(other) {}
  VkOwning& operator=(const VkOwning& other);
  VkOwning& operator=(const VkDynArrayBase<T*>& other);
  ~VkOwning() override { DeleteFrom(0); }

  void ReAllocate(int count) override;
  void SetLength(int count, bool keep) override;
  void Reset() override;
  bool DelCur() override;

  virtual void ReleaseCur(); // deletes the object and leaves null in the slot; nothing when the cursor is out
  virtual T* TakeOffCur();   // the slot goes as with DelCur; null when the cursor is out
  using Storage::Sort;
  // By the pointed-to values. Null slots are compared with nothing.
  virtual void Sort(ValueCompare compare) { this->SortBy(vk::ByValueCompare<T>{compare}, vk::NullSlot()); }

  void Release(int index);
  void ReleaseAll() { DeleteFrom(0); } // the length stays
  T* TakeOff(int index) { return this->MoveTo(index) ? TakeOffCur() : nullptr; }
  T* TakeOffHead() { return TakeOff(0); }
  T* TakeOffTail() { return TakeOff(m_nLength - 1); }
  int PlaceIn(T* object); // into the first null slot, else appended; the index. Takes it over

  T& GetPData(int index) const { return *this->GetAt(index); }
  T& GetCurPData() { return *this->GetCurData(); }
  T& operator()(int index) const { return GetPData(index); }
  int GetDataNum() const; // slots that are not null
  bool IsCurEmpty() const { return IsEmptyData(m_nCursor); }
  bool IsEmptyData(int index) const; // true, too, where there is no slot

  int FindDel(T* object); // all slots with this pointer; deletes the object once, if any. Null slots for null
  void DeepCopy(const VkDynArrayBase<T*>& other);

  // As the operations without Data in their names, by the pointed-to values; null slots are passed over.
  // There for a T that can be compared (and copied); templates, so that others can be instantiated without
  // them.
  template <std::equality_comparable U = T> int FindData(const T& value, int from = 0, int to = -1) const;
  template <std::equality_comparable U = T> bool FindDataTo(const T& value, int from = 0) {
    const int index = FindData(value, from);
    return index >= 0 && this->MoveTo(index);
  }
  template <std::equality_comparable U = T> int FindDataDel(const T& value);
  // Append and insert a new copy of the value.
  template <vk::Copied U = T> int FindDataOrAppend(const T& value);
  template <vk::Copied U = T> int FindDataOrInsertHead(const T& value);
  template <std::totally_ordered U = T> int BFindData(const T& value, int from = 0, int to = -1) const;
  template <std::totally_ordered U = T> bool BFindDataTo(const T& value, int from = 0, int to = -1);

 protected:
  using Storage::m_nCursor;
  using Storage::m_nLength;

 private:
  // Deletes the objects from the index on and leaves null in their slots.
  void DeleteFrom(int index);
};

#include "plugin/base/containers/VkOwning.inl.h"
