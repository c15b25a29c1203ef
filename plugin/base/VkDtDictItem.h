// An item of an XML dictionary: a name, and named attributes that are texts. An item that holds others is a
// VkDtDictionary.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

namespace xml {
class ItemAccess;
}

// Names and texts may be anything, whether or not XML could carry it. Null counts as the empty text.
class ZP_EXPORT VkDtDictItem {
 public:
  // The remark is kept with the item in the file; nothing else is done with it.
  VkDtDictItem(const wchar_t* name, const wchar_t* remark);
  VkDtDictItem(const VkDtDictItem&) = delete;
  VkDtDictItem& operator=(const VkDtDictItem&) = delete;
  virtual ~VkDtDictItem();

  const CString& GetName() const { return m_strName; }
  const CString& GetRemark() const { return m_strRemark; }

  // The text, or what it begins with as _wtoi and _wtof read it. "" and 0 for an attribute that is not there.
  CString GetAttributeValue(const wchar_t* name) const;
  int GetAttributeIntValue(const wchar_t* name) const;
  double GetAttributeDoubleValue(const wchar_t* name) const;

  // Create the attribute behind the others, or replace its text. A double is written in the shortest form
  // that reads back exactly ("20", "0.1"); one that is not finite reads back as 0.
  void SetAttributeValue(const wchar_t* name, const wchar_t* value);
  void SetAttributeIntValue(const wchar_t* name, int value);
  void SetAttributeDoubleValue(const wchar_t* name, double value);

  // The attributes in the order of their creation, by index from 0.
  int GetAttributeNum() const { return static_cast<int>(m_attributes.size()); }
  const CString& GetAttributeName(int index) const { return m_attributes[Checked(index)].name; }
  const CString& GetAttributeText(int index) const { return m_attributes[Checked(index)].value; }

 private:
  friend class xml::ItemAccess;
  struct Attribute {
    CString name;
    CString value;
  };

  static std::size_t Checked(int index) { return static_cast<std::size_t>(index); }
  const Attribute* FindAttribute(const CString& name) const;
  bool AddAttribute(CString name, CString value); // false when it is there
  void ClearItem();

  CString m_strName;
  CString m_strRemark;
  std::vector<Attribute> m_attributes;
  // From a name to its place, once there are many.
  std::unique_ptr<std::unordered_map<CString, std::size_t>> m_places;
};
