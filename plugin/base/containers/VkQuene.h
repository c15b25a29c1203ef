// A plain queue: in at the tail, out at the head. Searches put all their hits into one.
#pragma once

#include <cassert>
#include <deque>
#include <utility>

#include "plugin/base/ZpExport.h"

template <class T> class ZP_EXPORT VkQuene {
 public:
  int GetLength() const { return static_cast<int>(m_values.size()); }
  bool IsEmpty() const { return m_values.empty(); }
  void Reset() { m_values.clear(); }

  void Append(const T& value) { m_values.push_back(value); }
  // Index 0 is the head. A bad index is an error of the caller, and so is an empty queue below.
  const T& GetAt(int index) const {
    assert(index >= 0 && index < GetLength());
    return m_values[static_cast<std::size_t>(index)];
  }
  const T& operator[](int index) const { return GetAt(index); }
  const T& GetHead() const { return GetAt(0); }
  T TakeHead() {
    assert(!IsEmpty());
    T value = std::move(m_values.front());
    m_values.pop_front();
    return value;
  }

 private:
  std::deque<T> m_values;
};
