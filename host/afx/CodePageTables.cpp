#include "host/afx/CodePageTables.h"

#include <cerrno>
#include <cstdint>
#include <optional>

#include <iconv.h>

namespace afx {
namespace {

constexpr const char* kCodePoints = "UTF-32LE";

class Converter {
 public:
  Converter(const char* to, const char* from) : m_handle(iconv_open(to, from)) {}
  ~Converter() {
    if (IsOpen()) iconv_close(m_handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool IsOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

  enum class Outcome { Done, Incomplete, Invalid };

  // Converts these bytes and nothing before or after them; written is the number of bytes put out.
  Outcome Convert(const char* bytes, std::size_t count, char* out, std::size_t room, std::size_t& written) {
    iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(bytes);
    char* end = out;
    std::size_t left = room;
    if (iconv(m_handle, &in, &count, &end, &left) == static_cast<std::size_t>(-1))
      return errno == EINVAL ? Outcome::Incomplete : Outcome::Invalid;
    // Pages with combining marks hold a letter back until they know that no mark follows.
    if (iconv(m_handle, nullptr, nullptr, &end, &left) == static_cast<std::size_t>(-1))
      return Outcome::Invalid;
    written = static_cast<std::size_t>(end - out);
    return Outcome::Done;
  }

 private:
  iconv_t m_handle;
};

struct Decoded {
  char16_t character = 0; // 0: undefined
  bool isLead = false;
};

Decoded Decode(Converter& converter, const char* bytes, std::size_t count) {
  std::uint32_t characters[4] = {};
  std::size_t written = 0;
  const auto outcome =
      converter.Convert(bytes, count, reinterpret_cast<char*>(characters), sizeof characters, written);
  if (outcome == Converter::Outcome::Incomplete) return {0, true};
  if (outcome == Converter::Outcome::Invalid || written != 4 || characters[0] > 0xFFFF) return {};
  return {static_cast<char16_t>(characters[0]), false};
}

// The code that the page itself prefers for a character which several codes stand for.
std::optional<unsigned short> Preferred(Converter& converter, char16_t character) {
  const std::uint32_t wide = character;
  unsigned char bytes[4] = {};
  std::size_t written = 0;
  const auto outcome = converter.Convert(reinterpret_cast<const char*>(&wide), sizeof wide,
                                         reinterpret_cast<char*>(bytes), sizeof bytes, written);
  if (outcome != Converter::Outcome::Done || written < 1 || written > 2) return std::nullopt;
  return static_cast<unsigned short>(written == 1 ? bytes[0] : bytes[0] << 8 | bytes[1]);
}

template <class Visit> void ForEachPair(Visit visit) {
  for (int lead = 0x80; lead <= 0xFF; ++lead)
    for (int trail = 0x21; trail <= 0xFF; ++trail) visit(lead, trail);
}

Decoded DecodePair(Converter& converter, int lead, int trail) {
  const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
  return Decode(converter, bytes, sizeof bytes);
}

} // namespace

bool CodePageTables::Fill(const char* iconvName, const char* fallback) {
  Converter toWide(kCodePoints, iconvName);
  Converter fromWide(iconvName, kCodePoints);
  if (!toWide.IsOpen() || !fromWide.IsOpen()) return false;
  codes.assign(0x10000, 0);
  const auto enter = [&](char16_t character, int code) {
    unsigned short& known = codes[character];
    known = known == 0 ? static_cast<unsigned short>(code) : Preferred(fromWide, character).value_or(known);
  };

  std::array<bool, 256> isLead{};
  for (int byte = 0x80; byte <= 0xFF; ++byte) {
    const char bytes[] = {static_cast<char>(byte)};
    const Decoded decoded = Decode(toWide, bytes, 1);
    isLead[static_cast<std::size_t>(byte)] = decoded.isLead;
    // A page may give a high byte an ASCII meaning; the ASCII byte stays the one that is written.
    if (decoded.character < 0x80) continue;
    single[static_cast<std::size_t>(byte - 0x80)] = decoded.character;
    enter(decoded.character, byte);
  }
  for (const bool lead : isLead)
    if (lead && pairs.empty()) pairs.assign(0x10000, 0);
  ForEachPair([&](int lead, int trail) {
    if (!isLead[static_cast<std::size_t>(lead)]) return;
    const Decoded decoded = DecodePair(toWide, lead, trail);
    if (decoded.character < 0x80) return;
    pairs[static_cast<std::size_t>(lead << 8 | trail)] = decoded.character;
    enter(decoded.character, lead << 8 | trail);
  });
  if (fallback) AddFallback(fallback);
  return true;
}

void CodePageTables::AddFallback(const char* iconvName) {
  Converter toWide(kCodePoints, iconvName);
  if (!toWide.IsOpen()) return;
  ForEachPair([&](int lead, int trail) {
    const auto code = static_cast<unsigned short>(lead << 8 | trail);
    if (pairs[code] != 0 || single[static_cast<std::size_t>(lead - 0x80)] != 0) return;
    const Decoded decoded = DecodePair(toWide, lead, trail);
    // A character that the page writes in another way would not come back as these bytes.
    if (decoded.character < 0x80 || codes[decoded.character] != 0) return;
    pairs[code] = decoded.character;
    codes[decoded.character] = code;
  });
}

} // namespace afx
