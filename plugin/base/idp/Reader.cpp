// One pass over the text with simdjson's forward parser, which gives the place of each token and leaves
// strings as they stand: a surrogate without its partner, legal in a text of ours, would not survive its own
// unescaping. Every token is looked at, so nothing damaged is skipped, and the first fault ends the pass.
#include "plugin/base/idp/Reader.h"

#include <limits>

#include <simdjson.h>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/JsonString.h"
#include "plugin/base/idp/Limits.h"
#include "plugin/base/idp/NodeAccess.h"
#include "plugin/base/idp/TextFault.h"

namespace idp {

static_assert(PaddedText::kPadding >= simdjson::SIMDJSON_PADDING);

namespace {

namespace json = simdjson::ondemand;

class TreeReader {
 public:
  TreeReader(const char* begin, std::size_t size, std::size_t capacity)
      : m_begin(begin), m_size(size), m_capacity(capacity) {}

  bool Read(CInterDpData& root) {
    // Each node takes two levels of brackets.
    if (m_parser.allocate(m_size, 2 * kDepthLimit + 8)) return Fail(0, L"内存不足");
    if (const auto error = m_parser.iterate(m_begin, m_size, m_capacity).get(m_document)) {
      return FailUnparsed(error);
    }
    json::array parts;
    if (m_document.get_array().get(parts)) return FailHere(L"根不是 [值, {子键}]");
    if (!ReadParts(parts, root, 1, true)) return false;
    const char* behind;
    return m_document.current_location().get(behind) == simdjson::OUT_OF_BOUNDS ||
           FailHere(L"根之后还有内容");
  }

  const Fault& GetFault() const { return m_fault; }

 private:
  bool ReadSubKey(json::value& value, SubKey& subKey, int depth) {
    json::json_type type;
    if (value.type().get(type)) return FailHere(L"此处应为一个值");
    if (type != json::json_type::array) return ReadValue(value, type, subKey.ownValue);
    json::array parts;
    if (value.get_array().get(parts)) return FailHere(L"数组不完整");
    return ReadParts(parts, subKey.Node(), depth, false);
  }

  bool ReadParts(json::array& parts, CInterDpData& node, int depth, bool root) {
    const wchar_t* const shape = root ? L"根不是 [值, {子键}]" : L"节点不是 [值, {子键}]";
    int count = 0;
    for (auto part : parts) {
      if (part.error()) return FailHere(L"数组中缺少逗号或括号");
      json::value& value =
          part.value_unsafe(); // not copied, here and below: the copies cost more than the work
      json::json_type type;
      if (value.type().get(type)) return FailHere(L"此处应为一个值");
      if (count == 0) {
        if (!ReadValue(value, type, NodeAccess::Value(node))) return false;
      } else {
        if (count > 1 || type != json::json_type::object) return Fail(value, shape);
        if (!ReadSubKeys(value, node, depth)) return false;
      }
      ++count;
    }
    return count == 2 || FailHere(shape);
  }

  bool ReadSubKeys(json::value& value, CInterDpData& node, int depth) {
    const std::size_t start = OffsetOf(value);
    json::object fields;
    if (value.get_object().get(fields)) return FailHere(L"子键不完整");
    for (auto part : fields) {
      if (part.error()) return FailHere(L"子键之间缺少逗号、冒号或括号");
      json::field& field = part.value_unsafe();
      if (depth == kDepthLimit) return Fail(start, L"嵌套超过 1024 层");
      std::string_view key;
      const char* raw = field.key().raw();
      if (!m_strings.Decode(raw, key)) return Fail(Offset(raw), L"无效的转义");
      SubKeyTable& table = NodeAccess::Table(node);
      CompactValue name(key);
      if (table.Find(name)) return Fail(Offset(raw) - 1, L"键重复");
      if (!ReadSubKey(field.value(), table.Append(std::move(name)), depth + 1)) return false;
    }
    return true;
  }

  bool ReadValue(json::value& value, json::json_type type, CompactValue& out) {
    switch (type) {
    case json::json_type::string:
      return ReadText(value, out);
    case json::json_type::number:
      return ReadNumber(value, out);
    case json::json_type::object:
      return ReadNonFinite(value, out);
    default:
      return Fail(value, L"值只能是文本或数字");
    }
  }

  bool ReadText(json::value& value, CompactValue& out) {
    json::raw_json_string raw;
    if (value.get_raw_json_string().get(raw)) return FailHere(L"文本不完整");
    std::string_view text;
    if (!m_strings.Decode(raw.raw(), text)) return Fail(Offset(raw.raw()), L"无效的转义");
    out.SetText(text);
    return true;
  }

  // Not get_number(), which in version 3.0.1 gives 0 for a double of more than 19 digits.
  bool ReadNumber(json::value& value, CompactValue& out) {
    const std::size_t start = OffsetOf(value);
    bool isInteger;
    if (value.is_integer().get(isInteger)) return Fail(start, L"无效的数字");
    if (!isInteger) {
      double number;
      if (value.get_double().get(number)) return Fail(start, L"无效的数字");
      out.SetDouble(number);
      return true;
    }
    std::int64_t number;
    if (value.get_int64().get(number)) return Fail(start, L"无效的数字");
    if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
      return Fail(start, L"整数超出范围");
    }
    out.SetInteger(static_cast<int>(number));
    return true;
  }

  bool ReadNonFinite(json::value& value, CompactValue& out) {
    const std::size_t start = OffsetOf(value);
    json::object fields;
    if (value.get_object().get(fields)) return FailHere(L"值不完整");
    int count = 0;
    for (auto part : fields) {
      if (part.error()) return FailHere(L"值中缺少逗号、冒号或括号");
      json::field& field = part.value_unsafe();
      json::raw_json_string raw;
      std::string_view name;
      std::string_view text;
      if (count++ != 0 || !m_strings.Decode(field.key().raw(), name) || name != "double" ||
          field.value().get_raw_json_string().get(raw) || !m_strings.Decode(raw.raw(), text)) {
        return Fail(start, L"值不是 {\"double\": 文本}");
      }
      constexpr double infinity = std::numeric_limits<double>::infinity();
      if (text == "nan")
        out.SetDouble(std::numeric_limits<double>::quiet_NaN());
      else if (text == "inf")
        out.SetDouble(infinity);
      else if (text == "-inf")
        out.SetDouble(-infinity);
      else
        return Fail(start, L"值不是 nan、inf 或 -inf");
    }
    return count == 1 || Fail(start, L"值不是 {\"double\": 文本}");
  }

  std::size_t Offset(const char* place) const { return static_cast<std::size_t>(place - m_begin); }
  std::size_t OffsetOf(json::value& value) { return Offset(value.raw_json_token().data()); }

  bool Fail(std::size_t offset, const wchar_t* reason) {
    m_fault.offset = std::min(offset, m_size);
    m_fault.reason = reason;
    return false;
  }
  bool Fail(json::value& value, const wchar_t* reason) { return Fail(OffsetOf(value), reason); }
  bool FailHere(const wchar_t* reason) {
    const char* place;
    return Fail(m_document.current_location().get(place) ? m_size : Offset(place), reason);
  }
  // The parser's first stage looks at the text as a whole and tells no place.
  bool FailUnparsed(simdjson::error_code error) {
    const TextFault found = FindTextFault({m_begin, m_size});
    if (found.reason) return Fail(found.offset, found.reason);
    return Fail(0, error == simdjson::EMPTY ? L"文件是空的" : L"不是 JSON 文本");
  }

  const char* m_begin;
  std::size_t m_size;
  std::size_t m_capacity;
  json::parser m_parser;
  json::document m_document;
  JsonString m_strings;
  Fault m_fault;
};

} // namespace

CString Describe(const Fault& fault) {
  CString text;
  text.Format(L"第 %s 行（字节 %s）：%s", CString(std::to_wstring(fault.line)),
              CString(std::to_wstring(fault.offset)), fault.reason);
  return text;
}

bool ReadTree(CInterDpData& node, PaddedText& text, Fault& fault) {
  NodeAccess::Reset(node);
  std::size_t size = text.bytes.size();
  text.bytes.append(PaddedText::kPadding, '\0');
  // Editors on Windows put a byte order mark before UTF-8.
  const std::size_t skipped = std::string_view(text.bytes).starts_with("\xEF\xBB\xBF") ? 3 : 0;
  TreeReader reader(text.bytes.data() + skipped, size - skipped, text.bytes.size() - skipped);
  const bool good = reader.Read(node);
  if (!good) {
    NodeAccess::Reset(node);
    fault = reader.GetFault();
    fault.offset += skipped;
    const auto end = text.bytes.begin() + static_cast<std::ptrdiff_t>(fault.offset);
    fault.line = 1 + static_cast<std::size_t>(std::count(text.bytes.begin(), end, '\n'));
  }
  text.bytes.resize(size);
  return good;
}

} // namespace idp
