#include "plugin/base/VkDtDictItem.h"

#include <charconv>

#include "host/afx/Numbers.h"

namespace {

// Up to here, looking at each is quicker than an index.
constexpr std::size_t kFewAttributes = 16;

} // namespace

VkDtDictItem::VkDtDictItem(const wchar_t* name, const wchar_t* remark)
    : m_strName(name), m_strRemark(remark) {}

VkDtDictItem::~VkDtDictItem() = default;

const VkDtDictItem::Attribute* VkDtDictItem::FindAttribute(const CString& name) const {
  if (m_places) {
    const auto place = m_places->find(name);
    return place == m_places->end() ? nullptr : &m_attributes[place->second];
  }
  for (const Attribute& attribute : m_attributes) {
    if (attribute.name == name) return &attribute;
  }
  return nullptr;
}

bool VkDtDictItem::AddAttribute(CString name, CString value) {
  if (FindAttribute(name)) return false;
  m_attributes.push_back({std::move(name), std::move(value)});
  if (m_places) {
    m_places->emplace(m_attributes.back().name, m_attributes.size() - 1);
  } else if (m_attributes.size() > kFewAttributes) {
    m_places = std::make_unique<std::unordered_map<CString, std::size_t>>();
    for (std::size_t i = 0; i < m_attributes.size(); ++i) m_places->emplace(m_attributes[i].name, i);
  }
  return true;
}

void VkDtDictItem::ClearItem() {
  m_strName.Empty();
  m_strRemark.Empty();
  m_attributes.clear();
  m_places.reset();
}

CString VkDtDictItem::GetAttributeValue(const wchar_t* name) const {
  const Attribute* attribute = FindAttribute(name);
  return attribute ? attribute->value : CString();
}

int VkDtDictItem::GetAttributeIntValue(const wchar_t* name) const {
  const Attribute* attribute = FindAttribute(name);
  return attribute ? _wtoi(attribute->value) : 0;
}

double VkDtDictItem::GetAttributeDoubleValue(const wchar_t* name) const {
  const Attribute* attribute = FindAttribute(name);
  return attribute ? _wtof(attribute->value) : 0;
}

void VkDtDictItem::SetAttributeValue(const wchar_t* name, const wchar_t* value) {
  const CString key(name);
  CString text(value); // may be the attribute's own text
  if (const Attribute* attribute = FindAttribute(key)) {
    const_cast<Attribute*>(attribute)->value = std::move(text);
  } else {
    AddAttribute(key, std::move(text));
  }
}

void VkDtDictItem::SetAttributeIntValue(const wchar_t* name, int value) {
  SetAttributeValue(name, CString(std::to_wstring(value)));
}

void VkDtDictItem::SetAttributeDoubleValue(const wchar_t* name, double value) {
  char digits[40];
  const auto end = std::to_chars(digits, digits + sizeof digits, value);
  SetAttributeValue(name, CString(std::wstring(digits, end.ptr)));
}
