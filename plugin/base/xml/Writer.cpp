#include "plugin/base/xml/Writer.h"

#include <pugixml.hpp>

#include "host/afx/Encoding.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/base/xml/EscapedText.h"
#include "plugin/base/xml/Limits.h"
#include "plugin/base/xml/Vocabulary.h"

namespace xml {

namespace {

using List = VkPDList<VkDtDictItem>;

class TreeWriter {
 public:
  bool Write(const VkDtDictionary& dictionary, std::string& text) {
    pugi::xml_node declaration = m_document.append_child(pugi::node_declaration);
    declaration.append_attribute("version") = "1.0";
    declaration.append_attribute("encoding") = "UTF-8";
    pugi::xml_node root = m_document.append_child(kDictionaryElement);
    if (!WriteItem(dictionary, root, 1)) return false;
    Output output(text);
    m_document.save(output, "  ", pugi::format_indent, pugi::encoding_utf8);
    return !output.full || Fail(L"超过 64 MiB");
  }

  const CString& GetReason() const { return m_reason; }

 private:
  struct Output : pugi::xml_writer {
    explicit Output(std::string& target) : text(target) {}
    void write(const void* data, std::size_t size) override {
      full = full || text.size() + size > kTextLimit;
      if (!full) text.append(static_cast<const char*>(data), size);
    }
    std::string& text;
    bool full = false;
  };

  bool WriteItem(const VkDtDictItem& item, pugi::xml_node element, int depth) {
    if (depth > kDepthLimit) return Fail(L"嵌套超过 256 层");
    if (!item.GetName().IsEmpty()) SetText(element, kName, item.GetName());
    if (!item.GetRemark().IsEmpty()) SetText(element, kRemark, item.GetRemark());
    for (int i = 0; i < item.GetAttributeNum(); ++i) {
      pugi::xml_node attribute = AppendElement(element, kAttributeElement);
      if (!attribute) return false;
      SetText(attribute, kName, item.GetAttributeName(i));
      SetText(attribute, kValue, item.GetAttributeText(i));
    }
    const auto* dictionary = dynamic_cast<const VkDtDictionary*>(&item);
    if (!dictionary) return true;
    // The list's own walk, which leaves the index of names alone.
    for (VkDtDictItem** slot = dictionary->List::GetFirst(); slot; slot = dictionary->List::GetNext(slot)) {
      if (!*slot) continue;
      pugi::xml_node child = AppendElement(element, kItemElement);
      if (!child || !WriteItem(**slot, child, depth + 1)) return false;
    }
    return true;
  }

  pugi::xml_node AppendElement(pugi::xml_node parent, const char* name) {
    if (++m_elements > kElementLimit) {
      Fail(L"元素超过 200 万个");
      return {};
    }
    return parent.append_child(name);
  }

  static void SetText(pugi::xml_node element, const TextName& names, const CString& text) {
    if (IsPlain(text.View())) {
      element.append_attribute(names.plain) = text.ToUtf8().c_str();
    } else {
      element.append_attribute(names.escaped) = Escape(text.View()).c_str();
    }
  }

  bool Fail(const wchar_t* reason) {
    m_reason = reason;
    return false;
  }

  pugi::xml_document m_document;
  std::size_t m_elements = 1; // the root
  CString m_reason;
};

} // namespace

bool WriteDictionary(const VkDtDictionary& dictionary, std::string& text, CString& reason) {
  TreeWriter writer;
  text.clear();
  if (writer.Write(dictionary, text)) return true;
  reason = writer.GetReason();
  return false;
}

} // namespace xml
