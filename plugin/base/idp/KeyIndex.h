// From a key to its place in a table: open addressing over hashes and places, 8 bytes an entry. It knows no
// keys; the table says whether the key at a place is the one that is looked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace idp {

class KeyIndex {
 public:
  bool IsEmpty() const { return !m_slots; }
  void Clear() { m_slots.reset(); }
  void Reserve(std::size_t keys);
  // A full index clears itself instead; the table then builds a larger one at the next search.
  void Add(std::string_view key, std::size_t place);

  template <class IsItAt> std::optional<std::size_t> Find(std::string_view key, IsItAt isItAt) const {
    const std::uint32_t hash = HashOf(key);
    for (std::uint32_t at = hash & m_mask; m_slots[at].place != 0; at = (at + 1) & m_mask) {
      if (m_slots[at].hash == hash && isItAt(m_slots[at].place - 1)) return m_slots[at].place - 1;
    }
    return std::nullopt;
  }

 private:
  struct Slot {
    std::uint32_t hash;
    std::uint32_t place; // from 1; 0 marks a free slot
  };

  static std::uint32_t HashOf(std::string_view key);

  std::unique_ptr<Slot[]> m_slots;
  std::uint32_t m_mask = 0;
  std::uint32_t m_used = 0;
};

} // namespace idp
