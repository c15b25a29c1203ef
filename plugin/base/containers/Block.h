// The contiguous memory under VkDynArray and VkArray: room for values, how many are in use the owner knows.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <utility>

namespace vk {

// A block is made by new T[] so that Attach and Detach can exchange it with callers.
template <class T> class Block {
 public:
  T* Data() const { return m_data.get(); }
  int Room() const { return m_room; }

  // Room for exactly that many; the first kept values move along, the others are T().
  void Resize(int room, int kept) {
    if (room <= 0) return Take(nullptr, 0);
    auto data = std::make_unique<T[]>(static_cast<std::size_t>(room));
    const int moved = std::min(kept, room);
    if (moved > 0) std::move(m_data.get(), m_data.get() + moved, data.get());
    Take(data.release(), room);
  }

  // Room for at least that many. It grows to the next power of two, so that growing one by one costs constant
  // time. Behind the first kept values nothing is written yet that would only be overwritten.
  void Ensure(std::int64_t room, int kept) {
    if (room <= m_room) return;
    constexpr std::int64_t kLimit = std::numeric_limits<int>::max();
    if (room > kLimit) throw std::bad_alloc();
    room = std::min(kLimit, std::max(room, std::int64_t{std::bit_ceil(std::uint32_t(m_room) + 1)}));
    auto data = std::make_unique_for_overwrite<T[]>(static_cast<std::size_t>(room));
    std::move(m_data.get(), m_data.get() + kept, data.get());
    Take(data.release(), static_cast<int>(room));
  }

  // Moves the values from at on, of length values, by one: away from at, or onto it. The place that becomes
  // free is T() after closing, and unspecified after opening.
  void Open(int at, int length) { std::move_backward(Data() + at, Data() + length, Data() + length + 1); }
  void Close(int at, int length) {
    std::move(Data() + at + 1, Data() + length, Data() + at);
    Data()[length - 1] = T();
  }

  void Take(T* data, int room) {
    m_data.reset(data);
    m_room = room;
  }
  T* Give() {
    m_room = 0;
    return m_data.release();
  }

 private:
  std::unique_ptr<T[]> m_data;
  int m_room = 0;
};

} // namespace vk
