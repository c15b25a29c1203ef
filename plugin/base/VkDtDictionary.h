// A small XML dictionary: an item that owns a list of items, at the same time the root of a file and each
// level below it. docs/formats/xml_dictionary.md describes the file.
#pragma once

#include "plugin/base/VkDtDictItem.h"
#include "plugin/base/containers/VkPDList.h"

// The children are reached by the list's cursor, in list order; a walk ends when the cursor leaves the range
// 0 to count - 1. A dictionary owns its children, and whoever makes a root owns that. Children read from a
// file are dictionaries all.
//
// A slot of the list (a reference from GetCurData, a pointer from GetTo and the like, a node from GetCurPos)
// may be written to until the next FindDict or FindOrAddDict.
class ZP_EXPORT VkDtDictionary : public VkDtDictItem, public VkPDList<VkDtDictItem> {
 public:
  VkDtDictionary(const wchar_t* name, const wchar_t* remark);
  ~VkDtDictionary() override;

  // Replaces name, remark, attributes and children by those of the file. False for a file that is missing,
  // unreadable, damaged or beyond the limits of the format, with position and reason in the message log; the
  // dictionary is then empty and usable.
  bool ReadFromXML(const wchar_t* path);

  // Writes this dictionary and all below it, creating or replacing the file at once or not at all, and
  // creating the folders that lead to it. Null slots are left out. An old file that is damaged, foreign, or
  // holds what a dictionary does not (comments) is first copied to NAME.rescued-N. False, with the old file
  // in its place and the reason in the message log, on failure: the disk refuses, no copy can be made, or
  // ReadFromXML could not read the result.
  bool SaveToXML(const wchar_t* path);

  // The first direct child dictionary of that name, or null. The cursor stays.
  VkDtDictionary* FindDict(const CString& name);
  // The same, and a missing one is appended; the cursor is then on it.
  VkDtDictionary* FindOrAddDict(const CString& name);

  void Reset() override; // drops all children; the attributes stay

  // As in the list. They tell the index of names that the list changes or may be changed.
  VkDtDictItem*& GetCurData() override;
  VkDtDictItem** GetFirst() const override;
  VkDtDictItem** GetNext(VkDtDictItem* const* slot) const override;
  VkDtDictItem** GetPre(VkDtDictItem* const* slot) const override;
  VkDtDictItem** GetLast() const override;
  VkDtDictItem*& GetAt(int index) const override;
  void InsertAfterCur(VkDtDictItem* const& item) override;

 protected:
  void LinksChanged(int index) override;

 private:
  using NameIndex = std::unordered_map<CString, VkDtDictionary*>;

  void ForgetNames() const;
  VkDtDictionary* FindByWalk(const CString& name) const;
  void IndexNames() const;

  mutable std::unique_ptr<NameIndex> m_byName;
  mutable int m_finds = 0; // searches since the list was touched
};
