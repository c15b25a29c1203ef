// A text, an integer or a double in 16 bytes. Texts of up to 15 bytes, nearly all keys and values of the
// catalogues, need no memory of their own. Texts are in the stored form of StoredText.h.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>
#include <utility>

namespace idp {

// Two words, so that values are filled, moved and compared in registers. The highest byte tells what they
// hold.
class CompactValue {
 public:
  enum class Kind { Text, Integer, Double, Nothing };

  CompactValue() = default; // the empty text
  explicit CompactValue(std::string_view text) { SetText(text); }
  ~CompactValue() { FreeText(); }
  CompactValue(CompactValue&& other) noexcept
      : m_low(std::exchange(other.m_low, 0)), m_high(std::exchange(other.m_high, 0)) {}
  CompactValue& operator=(CompactValue&& other) noexcept {
    std::swap(m_low, other.m_low);
    std::swap(m_high, other.m_high);
    return *this;
  }

  void SetText(std::string_view text);
  void SetInteger(int value) { Set(static_cast<std::uint32_t>(value), kInteger); }
  void SetDouble(double value) { Set(std::bit_cast<std::uint64_t>(value), kDouble); }
  void SetNothing() { Set(0, kNothing); }

  Kind GetKind() const {
    const unsigned tag = Tag();
    return tag <= kHeapText ? Kind::Text : static_cast<Kind>(tag - kHeapText);
  }
  // Each of these may be asked only for its own kind.
  std::string_view Text() const {
    return Tag() < kHeapText ? std::string_view(reinterpret_cast<const char*>(this), Tag()) : HeapText();
  }
  int Integer() const { return static_cast<int>(static_cast<std::uint32_t>(m_low)); }
  double Double() const { return std::bit_cast<double>(m_low); }

  // Whether both are texts, and the same.
  bool IsSameText(const CompactValue& other) const {
    if (Tag() < kHeapText) return m_low == other.m_low && m_high == other.m_high;
    return Tag() == kHeapText && other.Tag() == kHeapText && HeapText() == other.HeapText();
  }

 private:
  static constexpr unsigned kInlineCapacity =
      15;                                   // tags 0 to 15: the length of a text that stands in the words
  static constexpr unsigned kHeapText = 16; // m_low is the address of a block
  static constexpr unsigned kInteger = kHeapText + static_cast<unsigned>(Kind::Integer);
  static constexpr unsigned kDouble = kHeapText + static_cast<unsigned>(Kind::Double);
  static constexpr unsigned kNothing = kHeapText + static_cast<unsigned>(Kind::Nothing);
  static_assert(std::endian::native == std::endian::little, "a short text lies across both words");

  unsigned Tag() const { return static_cast<unsigned>(m_high >> 56); }
  void Set(std::uint64_t low, unsigned tag) {
    FreeText();
    m_low = low;
    m_high = static_cast<std::uint64_t>(tag) << 56;
  }
  std::string_view HeapText() const;
  void FreeText() {
    if (Tag() == kHeapText) FreeHeapText();
  }
  void FreeHeapText();

  std::uint64_t m_low = 0;
  std::uint64_t m_high = 0; // zero behind a short text
};

} // namespace idp
