// Runs only over files that were refused, so it is plain and not fast.
#include "plugin/base/idp/TextFault.h"

#include "host/afx/Encoding.h"

namespace idp {

namespace {

// How many bytes a sequence with this first byte has.
std::size_t SequenceLength(unsigned char lead) {
  return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

} // namespace

std::size_t FirstBadByte(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(text[at]));
    if (!afx::IsUtf8(text.substr(at, length))) break;
    at += length;
  }
  return at;
}

TextFault FindTextFault(std::string_view text) {
  const std::size_t bad = FirstBadByte(text);
  if (bad < text.size()) return {bad, L"不是 UTF-8"};
  bool inside = false;
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto c = static_cast<unsigned char>(text[at]);
    if (c == '"') {
      inside = !inside;
      start = at;
    } else if (inside && c == '\\') {
      ++at;
    } else if (inside && c < 0x20) {
      return {at, L"文本中有控制字符"};
    }
  }
  if (inside) return {start, L"文本没有结束"};
  return {};
}

} // namespace idp
