// A long text lies in a block of its own that begins with its length.
#include "plugin/base/idp/CompactValue.h"

#include <cstddef>
#include <cstring>

namespace idp {

namespace {

template <class Word> std::uint64_t Load(const char* text) {
  Word word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// The first eight bytes of a text of up to fifteen, in a few loads that overlap: a copy of unknown size costs
// a call, and its result could not be read back as words at once.
std::uint64_t LowWord(const char* text, std::size_t size) {
  if (size >= 8) return Load<std::uint64_t>(text);
  if (size >= 4) return Load<std::uint32_t>(text) | Load<std::uint32_t>(text + size - 4) << (8 * (size - 4));
  if (size == 0) return 0;
  return Load<std::uint8_t>(text) | Load<std::uint8_t>(text + size / 2) << (8 * (size / 2)) |
         Load<std::uint8_t>(text + size - 1) << (8 * (size - 1));
}

std::uint64_t HighWord(const char* text, std::size_t size) {
  return size <= 8 ? 0 : Load<std::uint64_t>(text + size - 8) >> (8 * (16 - size));
}

} // namespace

void CompactValue::SetText(std::string_view text) {
  const std::size_t size = text.size();
  if (size <= kInlineCapacity) {
    const std::uint64_t low = LowWord(text.data(), size);
    const std::uint64_t high = HighWord(text.data(), size);
    Set(low, static_cast<unsigned>(size)); // only now: the text may be this value's own
    m_high |= high;
    return;
  }
  char* block = new char[sizeof size + size];
  std::memcpy(block, &size, sizeof size);
  std::memcpy(block + sizeof size, text.data(), size);
  Set(reinterpret_cast<std::uintptr_t>(block), kHeapText);
}

std::string_view CompactValue::HeapText() const {
  const char* block = reinterpret_cast<const char*>(static_cast<std::uintptr_t>(m_low));
  std::size_t size;
  std::memcpy(&size, block, sizeof size);
  return {block + sizeof size, size};
}

void CompactValue::FreeHeapText() {
  delete[] reinterpret_cast<char*>(static_cast<std::uintptr_t>(m_low));
}

} // namespace idp
