#include "host/dxf/BinaryDxf.h"

#include "host/afx/Numbers.h"
#include "host/db/DxfTag.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::string_view kSentinel("AutoCAD Binary DXF\r\n\x1a\0", 22);

// Reads little-endian numbers and texts; after the end everything is zero and failed() tells.
class Cursor {
 public:
  explicit Cursor(std::string_view bytes) : m_bytes(bytes) {}
  bool atEnd() const { return m_at >= m_bytes.size(); }
  bool failed() const { return m_failed; }
  std::size_t offset() const { return m_at; }

  template <typename T> T number() {
    T value{};
    if (m_bytes.size() - m_at < sizeof value) {
      m_failed = true;
      m_at = m_bytes.size();
      return value;
    }
    std::memcpy(&value, m_bytes.data() + m_at, sizeof value);
    m_at += sizeof value;
    return value;
  }
  std::string_view text() {
    const auto end = m_bytes.find('\0', m_at);
    if (end == m_bytes.npos) {
      m_failed = true;
      m_at = m_bytes.size();
      return {};
    }
    const auto value = m_bytes.substr(m_at, end - m_at);
    m_at = end + 1;
    return value;
  }
  std::string_view chunk() {
    const std::size_t length = number<std::uint8_t>();
    if (m_bytes.size() - m_at < length) {
      m_failed = true;
      m_at = m_bytes.size();
      return {};
    }
    const auto value = m_bytes.substr(m_at, length);
    m_at += length;
    return value;
  }

 private:
  std::string_view m_bytes;
  std::size_t m_at = 0;
  bool m_failed = false;
};

static_assert(std::endian::native == std::endian::little);

std::string hex(std::string_view bytes) {
  static constexpr char digits[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : bytes) {
    out += digits[static_cast<unsigned char>(c) >> 4];
    out += digits[static_cast<unsigned char>(c) & 15];
  }
  return out;
}

bool isInt32(int code) {
  return (code >= 90 && code < 100) || (code >= 420 && code < 430) || (code >= 440 && code < 460) ||
         code == 1071;
}

std::string readValue(Cursor& cursor, int code) {
  switch (dxf::valueKind(code)) {
  case dxf::ValueKind::real:
    return afx::ShortestDouble(cursor.number<double>());
  case dxf::ValueKind::boolean:
    return std::to_string(cursor.number<std::uint8_t>());
  case dxf::ValueKind::binary:
    return hex(cursor.chunk());
  case dxf::ValueKind::integer:
    if (code >= 160 && code < 170) return std::to_string(cursor.number<std::int64_t>());
    return isInt32(code) ? std::to_string(cursor.number<std::int32_t>())
                         : std::to_string(cursor.number<std::int16_t>());
  default:
    break;
  }
  std::string text(cursor.text());
  // A text with a line end would become two lines.
  for (std::size_t at = 0; (at = text.find_first_of("\r\n", at)) != text.npos; at += 2)
    text.replace(at, 1, text[at] == '\n' ? "^J" : "^M");
  return text;
}

} // namespace

bool dxf::isBinary(std::string_view bytes) {
  return bytes.starts_with(kSentinel);
}

dxf::TagText dxf::textFromBinary(std::string_view bytes) {
  TagText result;
  bytes.remove_prefix(kSentinel.size());
  // The first tag is "0 SECTION": after a one-byte code the text follows at once.
  const bool oneByteCodes = bytes.size() > 1 && bytes[1] != '\0';
  Cursor cursor(bytes);
  while (!cursor.atEnd()) {
    int code = oneByteCodes ? cursor.number<std::uint8_t>() : cursor.number<std::int16_t>();
    if (oneByteCodes && code == 255) code = cursor.number<std::int16_t>();
    const std::string value = readValue(cursor, code);
    if (cursor.failed()) {
      result.error.Format(L"二进制文件在第 %d 字节处意外结束",
                          static_cast<long long>(bytes.size() + kSentinel.size()));
      break;
    }
    result.text += std::to_string(code);
    result.text += '\n';
    result.text += value;
    result.text += '\n';
    if (code == 0 && value == "EOF") break;
  }
  return result;
}
