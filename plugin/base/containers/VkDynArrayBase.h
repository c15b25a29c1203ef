// What arrays and lists of the container family have in common: a length, a cursor, and all that can be done
// through the virtual operations alone. docs/containers.md tells which member to take and how cursors move.
#pragma once

#include "plugin/base/containers/Order.h"
#include "plugin/base/containers/VkQuene.h"

// Sizes and indices are signed 32-bit numbers, and an index counts from 0. T needs a default value, copying,
// == and the order < and >. A bad index is an error of the caller where nothing else is said. Not safe for
// threads; the cursor is shared by all who hold the container, so a walk inside a walk goes by GetFirst and
// GetNext. Where a range ends with "to", a to below 0 or beyond the end means the last index.
template <class T> class ZP_EXPORT VkDynArrayBase {
 public:
  // Above 0 when a belongs behind b.
  using Compare = int (*)(const T& a, const T& b);

  // The order of the virtual operations is part of the binary interface.
  // Sets the length and keeps the values.
  virtual void ReAllocate(int count) = 0;
  virtual ~VkDynArrayBase() = default;
  // Sets the length; without keep the old values are dropped. The cursor keeps its index while that is there.
  virtual void SetLength(int count, bool keep) = 0;
  virtual void Reset() = 0;    // no elements, cursor -1
  virtual T& GetCurData() = 0; // the cursor must be on an element
  virtual void SetCurData(const T& value) { GetCurData() = value; }
  // Moves of the cursor. All tell whether it is on an element now.
  virtual bool MoveToFirst() = 0;
  virtual bool MoveToNext() = 0;
  virtual bool MoveToPre() = 0;
  virtual bool MoveToLast() = 0;
  virtual bool MoveTo(int index) = 0;
  // Moves the cursor to the index, and grows the container when that is beyond the end: a mere subscript can
  // do both. The const form does neither.
  virtual T& operator[](int index);
  // A walk that leaves the cursor alone; null behind the end, before the beginning and when there is nothing.
  virtual T* GetFirst() const = 0;
  virtual T* GetNext(const T* value) const = 0;
  virtual T* GetPre(const T* value) const = 0;
  virtual T* GetLast() const = 0;
  virtual T& GetAt(int index) const = 0;
  // Opens a place at the cursor, which then stands on the new value.
  virtual void InsertCur(const T& value) = 0;
  virtual void Insert(int index, const T& value);
  virtual void InsertHead(const T& value) { Insert(0, value); }
  virtual int Append(const T& value); // the new index, where the cursor stands
  // Removes the current element and steps back, so that MoveToNext reaches the one behind it. False when the
  // cursor is out.
  virtual bool DelCur() = 0;
  // Stable; see docs/containers.md for elements that cannot be compared. The cursor keeps its index.
  virtual void Sort(Compare compare) = 0;
  virtual void Sort(bool ascending) = 0;
  // Puts the element before that at index to, leaves the cursor on it, and gives true. False, with nothing
  // done, when it would stay where it is (to equals from or from + 1) and for indices that are not there.
  virtual bool Move(int from, int to);

  int GetLength() const { return m_nLength; }
  int GetCur() const { return m_nCursor; }
  int GetMaxIndex() const { return m_nLength - 1; }
  bool IsEmpty() const { return m_nLength == 0; }
  bool IsBegin() const { return m_nCursor < 0; }
  bool IsEnd() const { return m_nCursor >= m_nLength; }
  bool IsOut() const { return !IsValidIndex(m_nCursor); }
  bool IsValidIndex(int index) const { return index >= 0 && index < m_nLength; }
  void IncreaseSize(int count) { SetLength(m_nLength + count, true); }
  void DecreaseSize(int count) { SetLength(m_nLength - count, true); }

  // Null when there is no such index; the cursor stays.
  T* GetTo(int index) const { return IsValidIndex(index) ? &GetAt(index) : nullptr; }
  const T& operator[](int index) const { return GetAt(index); }

  // Move the cursor to the place, then DelCur, whose result they give.
  bool Del(int index) { return MoveTo(index) && DelCur(); }
  bool DelHead() { return Del(0); }
  bool DelTail() { return Del(m_nLength - 1); }
  bool Exchange(int i, int j); // swaps two values; false for a bad index

  // The first index in the range with an equal value, or -1. The second form appends all such indices to hits
  // and gives their number.
  int Find(const T& value, int from = 0, int to = -1) const;
  int Find(const T& value, VkQuene<long>& hits, int from = 0, int to = -1) const;
  bool FindTo(const T& value, int from = 0); // leaves the cursor on the hit; it stays when there is none
  int FindDel(const T& value);          // deletes all equal values, gives their number; cursor at the end
  int FindOrAppend(const T& value);     // the index of the first equal value, or of the new one
  int FindOrInsertHead(const T& value); // likewise
  // Binary searches, on ascending contents. BFind gives -1 when the value is absent; BFindTo leaves the
  // cursor where it is or would have to go, which is 0 in an empty container.
  int BFind(const T& value, int from = 0, int to = -1) const;
  bool BFindTo(const T& value, int from = 0, int to = -1);
  // Inserts in order, behind equal values. False when one is there and duplicates are not allowed.
  bool SortInto(const T& value, bool allowDuplicate);

  void DeepCopy(const VkDynArrayBase& other); // takes over length and values; the cursor keeps its index
  void Reverse(int from = 0, int to = -1);    // by swapping values
  void SetAll(const T& value);
  // Copy a slice into out, whose contents it replaces. Mid includes both ends; counts are cut to what is
  // there.
  void Left(int count, VkDynArrayBase& out) const;
  void Right(int count, VkDynArrayBase& out) const;
  void Mid(int from, int to, VkDynArrayBase& out) const;

  VkDynArrayBase& operator<<(const T& value);
  VkDynArrayBase& operator<<(const VkDynArrayBase& other);
  VkDynArrayBase& operator=(const VkDynArrayBase& other);
  bool operator==(const VkDynArrayBase& other) const; // equal length, and equal values in order
  bool operator!=(const VkDynArrayBase& other) const { return !(*this == other); }
  bool operator<(const VkDynArrayBase& other) const { return m_nLength < other.m_nLength; } // by length
  bool operator>(const VkDynArrayBase& other) const { return m_nLength > other.m_nLength; }

 protected:
  VkDynArrayBase() = default;
  VkDynArrayBase(const VkDynArrayBase&) = delete; // members copy themselves by DeepCopy

  // Cuts the range to the contents; false when nothing of it is left.
  bool Clip(int& from, int& to) const;
  // Find with the storage's own way to the next value, which costs no virtual call.
  template <class Next> int FindBy(const T& value, int from, int to, Next next) const;
  // Deletes each element that doomed(element) says so of, in order. The question may destroy what it dooms.
  template <class Doomed> int DeleteEach(Doomed doomed);
  // BFindTo by order(element), the order of the wanted value to it.
  template <class Order, class IsHole> bool BFindToBy(int from, int to, Order order, IsHole isHole);

  int m_nLength = 0;
  int m_nCursor = -1;

 private:
  void Refill(int count); // so many elements, for values that follow; the cursor keeps its index
  void CopySlice(int from, int count, VkDynArrayBase& out) const;
};

#include "plugin/base/containers/VkDynArrayBase.inl.h"
