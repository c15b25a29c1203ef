// The memory of an array: raw room for elements, of which the first so many are alive. CArray is the
// interface.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>

namespace afx {

template <class TYPE> class ElementStorage {
 public:
  ElementStorage() = default;
  ElementStorage(const ElementStorage&) = delete;
  ElementStorage& operator=(const ElementStorage&) = delete;
  ~ElementStorage() { Free(); }

  TYPE* Data() const { return m_data; }
  int Size() const { return m_size; }
  int Capacity() const { return m_capacity; }

  void Swap(ElementStorage& other) noexcept {
    std::swap(m_data, other.m_data);
    std::swap(m_size, other.m_size);
    std::swap(m_capacity, other.m_capacity);
  }

  void Free() {
    Shrink(0);
    if (m_data) std::allocator<TYPE>().deallocate(m_data, static_cast<std::size_t>(m_capacity));
    m_data = nullptr;
    m_capacity = 0;
  }

  // Moves the elements into room for exactly this many, which must hold them all.
  void Reallocate(int capacity) {
    ElementStorage larger;
    larger.m_data = std::allocator<TYPE>().allocate(static_cast<std::size_t>(capacity));
    larger.m_capacity = capacity;
    std::uninitialized_move_n(m_data, m_size, larger.m_data);
    larger.m_size = m_size;
    Swap(larger);
  }

  // Adds value-initialised elements, for which there must be room.
  void Extend(int size) {
    std::uninitialized_value_construct(m_data + m_size, m_data + size);
    m_size = size;
  }

  // Destroys the elements from size on and keeps the room.
  void Shrink(int size) {
    std::destroy(m_data + size, m_data + m_size);
    m_size = size;
  }

 private:
  TYPE* m_data = nullptr;
  int m_size = 0;
  int m_capacity = 0;
};

} // namespace afx
