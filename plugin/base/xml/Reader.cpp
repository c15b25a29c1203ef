// The parser makes a document of it, which is then held against the vocabulary: whatever is not part of that,
// such as an element of another program, makes the file foreign rather than be lost at the next save.
#include "plugin/base/xml/Reader.h"

#include <algorithm>
#include <optional>

#include <pugixml.hpp>

#include "host/afx/Encoding.h"
#include "plugin/base/xml/EscapedText.h"
#include "plugin/base/xml/ItemAccess.h"
#include "plugin/base/xml/Limits.h"
#include "plugin/base/xml/TextCheck.h"
#include "plugin/base/xml/Vocabulary.h"

namespace xml {

namespace {

// Everything that the text holds becomes a node, so that nothing is passed over unseen.
constexpr unsigned kParseOptions = pugi::parse_full | pugi::parse_fragment;

CString ParseReason(pugi::xml_parse_status status) {
  switch (status) {
  case pugi::status_no_document_element:
    return L"没有根元素";
  case pugi::status_end_element_mismatch:
    return L"元素没有结束，或结束标记不符";
  case pugi::status_bad_attribute:
    return L"属性不完整";
  case pugi::status_bad_comment:
    return L"注释没有结束";
  case pugi::status_bad_start_element:
  case pugi::status_bad_end_element:
  case pugi::status_unrecognized_tag:
    return L"标记不完整";
  case pugi::status_out_of_memory:
    return L"内存不足";
  default:
    return L"不是 XML 文本";
  }
}

class TreeReader {
 public:
  bool Read(VkDtDictionary& root, std::string_view text) {
    const pugi::xml_parse_result parsed =
        m_document.load_buffer(text.data(), text.size(), kParseOptions, pugi::encoding_utf8);
    if (!parsed) return Fail(static_cast<std::size_t>(parsed.offset), ParseReason(parsed.status));
    pugi::xml_node found;
    for (const pugi::xml_node node : m_document.children()) {
      if (node.type() == pugi::node_element) {
        if (found) return Fail(node, L"不止一个根元素");
        found = node;
      } else if (!PassOver(node, !found)) {
        return false;
      }
    }
    if (!found) return Fail(text.size(), L"没有根元素");
    if (found.name() != std::string_view(kDictionaryElement)) return Fail(found, L"根元素不是 dictionary");
    return ReadItem(root, found, 1);
  }

  const idp::Fault& GetFault() const { return m_fault; }
  bool HasDropped() const { return m_dropped; }

 private:
  // An element around others: the root or an item.
  bool ReadItem(VkDtDictionary& item, pugi::xml_node element, int depth) {
    if (depth > kDepthLimit) return Fail(element, L"嵌套超过 256 层");
    const auto name = TakeText(element, kName);
    const auto remark = TakeText(element, kRemark);
    if (!name || !remark || !NothingLeft(element)) return false;
    ItemAccess::SetName(item, *name);
    ItemAccess::SetRemark(item, *remark);
    for (const pugi::xml_node node : element.children()) {
      const std::string_view kind = node.name();
      if (node.type() != pugi::node_element) {
        if (!PassOver(node, false)) return false;
      } else if (kind == kItemElement) {
        auto child = std::make_unique<VkDtDictionary>(nullptr, nullptr);
        item.Append(child.get());
        if (!ReadItem(*child.release(), node, depth + 1)) return false;
      } else if (kind != kAttributeElement) {
        return Fail(node, L"未知的元素");
      } else if (!ReadAttribute(item, node)) {
        return false;
      }
    }
    return true;
  }

  bool ReadAttribute(VkDtDictItem& item, pugi::xml_node element) {
    const auto name = TakeText(element, kName);
    const auto value = TakeText(element, kValue);
    if (!name || !value || !NothingLeft(element)) return false;
    for (const pugi::xml_node node : element.children()) {
      if (node.type() == pugi::node_element) return Fail(node, L"attr 中不能有元素");
      if (!PassOver(node, false)) return false;
    }
    return ItemAccess::Append(item, *name, *value) || Fail(element, L"属性重复");
  }

  // Takes the attribute off the element, the plain or the escaped one. Without either the text is empty.
  std::optional<CString> TakeText(pugi::xml_node element, const TextName& names) {
    const pugi::xml_attribute plain = element.attribute(names.plain);
    const pugi::xml_attribute escaped = element.attribute(names.escaped);
    std::optional<CString> text =
        escaped ? Unescape(escaped.value()) : std::optional(CString(afx::Utf8ToWide(plain.value())));
    if (!text) Fail(element, L"无效的转义");
    if (plain && escaped) {
      Fail(element, L"属性重复");
      text.reset();
    }
    element.remove_attribute(plain);
    element.remove_attribute(escaped);
    return text;
  }

  bool NothingLeft(pugi::xml_node element) {
    return !element.first_attribute() || Fail(element, L"未知或重复的属性");
  }

  bool PassOver(pugi::xml_node node, bool ahead) {
    switch (node.type()) {
    case pugi::node_declaration: {
      const std::string_view encoding = node.attribute("encoding").value();
      const bool utf8 = encoding.empty() || encoding == "UTF-8" || encoding == "utf-8";
      return (ahead || Fail(node, L"XML 声明不在开头")) && (utf8 || Fail(node, L"编码声明不是 UTF-8"));
    }
    case pugi::node_comment:
    case pugi::node_pi:
      m_dropped = true;
      return true;
    default:
      return Fail(node, L"元素之外有文本");
    }
  }

  bool Fail(pugi::xml_node node, const wchar_t* reason) {
    return Fail(static_cast<std::size_t>(node.offset_debug()), reason);
  }
  bool Fail(std::size_t offset, CString reason) {
    m_fault.offset = offset;
    m_fault.reason = std::move(reason);
    return false;
  }

  pugi::xml_document m_document;
  idp::Fault m_fault;
  bool m_dropped = false;
};

} // namespace

bool ReadDictionary(VkDtDictionary& dictionary, std::string_view text, idp::Fault& fault, bool& dropped) {
  ItemAccess::Clear(dictionary);
  const std::size_t skipped = text.starts_with("\xEF\xBB\xBF") ? 3 : 0; // as editors on Windows put it
  const std::string_view content = text.substr(skipped);
  const TextFault found = CheckText(content);
  if (!found.reason) {
    TreeReader reader;
    const bool good = reader.Read(dictionary, content);
    dropped = reader.HasDropped();
    if (good) return true;
    fault = reader.GetFault();
  } else {
    fault.offset = found.offset;
    fault.reason = found.reason;
  }
  ItemAccess::Clear(dictionary);
  fault.offset = std::min(fault.offset + skipped, text.size());
  fault.line = 1 + static_cast<std::size_t>(std::count(
                       text.begin(), text.begin() + static_cast<std::ptrdiff_t>(fault.offset), '\n'));
  return false;
}

} // namespace xml
