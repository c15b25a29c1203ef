#include "plugin/base/xml/TextCheck.h"

#include <charconv>

#include "host/afx/Encoding.h"
#include "plugin/base/idp/TextFault.h"
#include "plugin/base/xml/Limits.h"

namespace xml {

namespace {

bool IsCharacterReference(std::string_view digits) {
  const int base = digits.starts_with('x') ? 16 : 10;
  if (base == 16) digits.remove_prefix(1);
  unsigned long code = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, code, base);
  if (read.ec != std::errc() || read.ptr != end) return false;
  if (code < 0x20) return code == '\t' || code == '\n' || code == '\r';
  return code < 0xD800 || (code >= 0xE000 && code < 0xFFFE) || (code >= 0x10000 && code <= 0x10FFFF);
}

// reference is what stands between "&" and ";". Others than these would need a document type.
bool IsKnownReference(std::string_view reference) {
  if (reference.starts_with('#')) return IsCharacterReference(reference.substr(1));
  return reference == "amp" || reference == "lt" || reference == "gt" || reference == "quot" ||
         reference == "apos";
}

class Check {
 public:
  explicit Check(std::string_view text) : m_text(text) {}

  TextFault Run() {
    while (m_at < m_text.size()) {
      if (const wchar_t* reason = Step()) return {m_at, reason};
    }
    return {};
  }

 private:
  const wchar_t* Step() {
    const auto c = static_cast<unsigned char>(m_text[m_at]);
    if (c < 0x20 && c != '\t' && c != '\n' && c != '\r') return L"文件中有控制字符";
    if (c == '&') return Reference();
    if (c == '<') return Markup();
    if (m_quote != 0) {
      if (c == m_quote) m_quote = 0;
    } else if (m_inTag) {
      if (c == '"' || c == '\'') m_quote = c;
      if (c == '>') m_inTag = false;
    }
    ++m_at;
    return nullptr;
  }

  const wchar_t* Reference() {
    const std::size_t end = m_text.substr(0, m_at + kLongestReference).find(';', m_at);
    if (end == std::string_view::npos || !IsKnownReference(m_text.substr(m_at + 1, end - m_at - 1)))
      return L"无效或未知的实体引用";
    m_at = end + 1;
    return nullptr;
  }

  const wchar_t* Markup() {
    if (m_inTag) return L"标记中有 <";
    const std::string_view rest = m_text.substr(m_at);
    if (rest.starts_with("<!DOCTYPE")) return L"不接受文档类型声明（DOCTYPE）";
    if (rest.starts_with("<!--")) return Skip("-->");
    if (rest.starts_with("<![CDATA[")) return Skip("]]>");
    if (rest.starts_with("<?")) return Skip("?>");
    if (!rest.starts_with("</") && ++m_elements > kElementLimit) return L"元素超过 200 万个";
    m_inTag = true;
    ++m_at;
    return nullptr;
  }

  // What is in there is left to the parser, but not its bytes.
  const wchar_t* Skip(std::string_view closing) {
    const std::size_t end = m_text.find(closing, m_at);
    for (const std::size_t behind = std::min(end, m_text.size()); m_at < behind; ++m_at) {
      const auto c = static_cast<unsigned char>(m_text[m_at]);
      if (c < 0x20 && c != '\t' && c != '\n' && c != '\r') return L"文件中有控制字符";
    }
    return nullptr;
  }

  static constexpr std::size_t kLongestReference = 16;

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_elements = 0;
  unsigned char m_quote = 0;
  bool m_inTag = false;
};

} // namespace

TextFault CheckText(std::string_view text) {
  if (!afx::IsUtf8(text)) return {idp::FirstBadByte(text), L"不是 UTF-8"};
  return Check(text).Run();
}

} // namespace xml
