// The growing array in which ids and points are handed about. Elements are copied in and out; pointers are
// not owned. An index outside 0 to length() - 1 raises CInvalidArgException.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "host/afx/CInvalidArgException.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

template <typename T> class ZP_EXPORT AcArray {
 public:
  // growLength is by how many elements the memory grows when it is full.
  explicit AcArray(int physicalLength = 0, int growLength = 8) : m_growLength(std::max(growLength, 1)) {
    setPhysicalLength(physicalLength);
  }

  int length() const { return static_cast<int>(m_items.size()); }
  int logicalLength() const { return length(); }
  int physicalLength() const { return static_cast<int>(m_items.capacity()); }
  int growLength() const { return m_growLength; }
  bool isEmpty() const { return m_items.empty(); }

  const T& at(int index) const { return m_items[checked(index)]; }
  T& at(int index) { return m_items[checked(index)]; }
  const T& operator[](int index) const { return at(index); }
  T& operator[](int index) { return at(index); }
  const T& first() const { return at(0); }
  const T& last() const { return at(length() - 1); }
  AcArray& setAt(int index, const T& value) {
    at(index) = value;
    return *this;
  }

  // The index of the new element.
  int append(const T& value) {
    const T item = value; // it may stand in this array, whose memory moves
    grow();
    m_items.push_back(item);
    return length() - 1;
  }
  AcArray& append(const AcArray& other) {
    const std::vector<T> items = other.m_items; // it may be this one
    m_items.insert(m_items.end(), items.begin(), items.end());
    return *this;
  }
  // index may be the length.
  AcArray& insertAt(int index, const T& value) {
    if (index != length()) checked(index);
    const T item = value;
    grow();
    m_items.insert(m_items.begin() + index, item);
    return *this;
  }
  AcArray& removeAt(int index) {
    m_items.erase(m_items.begin() + static_cast<std::ptrdiff_t>(checked(index)));
    return *this;
  }
  // The first equal element; whether there was one.
  bool remove(const T& value) {
    int index = 0;
    if (!find(value, index)) return false;
    removeAt(index);
    return true;
  }
  AcArray& removeAll() {
    m_items.clear();
    return *this;
  }
  AcArray& setLogicalLength(int length) {
    if (length < 0) AfxThrowInvalidArgException();
    m_items.resize(static_cast<std::size_t>(length));
    return *this;
  }
  AcArray& setPhysicalLength(int length) {
    if (length > 0) m_items.reserve(static_cast<std::size_t>(length));
    return *this;
  }

  bool contains(const T& value) const {
    return std::find(m_items.begin(), m_items.end(), value) != m_items.end();
  }
  // Sets index to the first equal element from start on; left alone when there is none.
  bool find(const T& value, int& index, int start = 0) const {
    for (int i = std::max(start, 0); i < length(); ++i) {
      if (!(at(i) == value)) continue;
      index = i;
      return true;
    }
    return false;
  }
  AcArray& reverse() {
    std::reverse(m_items.begin(), m_items.end());
    return *this;
  }
  AcArray& swap(int a, int b) {
    std::swap(at(a), at(b));
    return *this;
  }

  const T* asArrayPtr() const { return m_items.data(); }
  T* asArrayPtr() { return m_items.data(); }
  const T* begin() const { return m_items.data(); }
  const T* end() const { return m_items.data() + m_items.size(); }
  T* begin() { return m_items.data(); }
  T* end() { return m_items.data() + m_items.size(); }

 private:
  std::size_t checked(int index) const {
    if (index < 0 || index >= length()) AfxThrowInvalidArgException();
    return static_cast<std::size_t>(index);
  }
  // Makes room for one more: by half where that is more, so that long arrays don't cost the square of their
  // length.
  void grow() {
    if (m_items.size() < m_items.capacity()) return;
    m_items.reserve(m_items.size() + std::max(static_cast<std::size_t>(m_growLength), m_items.size() / 2));
  }

  std::vector<T> m_items;
  int m_growLength;
};

using AcDbObjectIdArray = AcArray<AcDbObjectId>;
