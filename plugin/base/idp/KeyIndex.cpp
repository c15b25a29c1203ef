#include "plugin/base/idp/KeyIndex.h"

#include <bit>
#include <functional>

namespace idp {

std::uint32_t KeyIndex::HashOf(std::string_view key) {
  const std::size_t hash = std::hash<std::string_view>()(key);
  return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

void KeyIndex::Reserve(std::size_t keys) {
  const std::size_t slots = std::bit_ceil(keys * 4);
  m_slots = std::make_unique<Slot[]>(slots);
  m_mask = static_cast<std::uint32_t>(slots - 1);
  m_used = 0;
}

void KeyIndex::Add(std::string_view key, std::size_t place) {
  if (m_used * std::size_t{2} > m_mask) {
    Clear();
    return;
  }
  const std::uint32_t hash = HashOf(key);
  std::uint32_t at = hash & m_mask;
  while (m_slots[at].place != 0) at = (at + 1) & m_mask;
  m_slots[at] = {hash, static_cast<std::uint32_t>(place + 1)};
  ++m_used;
}

} // namespace idp
