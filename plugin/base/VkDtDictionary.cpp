// The tree in memory. Files are in VkDtDictionaryFile.cpp.
#include "plugin/base/VkDtDictionary.h"

#include <utility>

#include "plugin/base/xml/ItemAccess.h"

namespace {

using List = VkPDList<VkDtDictItem>;

// Up to here, looking at each is quicker than an index.
constexpr int kFewChildren = 16;

VkDtDictionary* AsDictionary(VkDtDictItem* item) {
  return dynamic_cast<VkDtDictionary*>(item);
}

} // namespace

VkDtDictionary::VkDtDictionary(const wchar_t* name, const wchar_t* remark) : VkDtDictItem(name, remark) {}

VkDtDictionary::~VkDtDictionary() {
  VkDtDictionary::Reset();
}

// The lists below are joined to this one first, so that a deep tree is freed without deep recursion.
void VkDtDictionary::Reset() {
  for (MoveToFirst(); !IsOut(); MoveToNext()) {
    if (VkDtDictionary* child = AsDictionary(GetCurData())) Conbine(*child, 0);
  }
  List::Reset();
}

VkDtDictionary* VkDtDictionary::FindByWalk(const CString& name) const {
  for (VkDtDictItem** slot = List::GetFirst(); slot; slot = List::GetNext(slot)) {
    if (!*slot || (*slot)->GetName() != name) continue;
    if (VkDtDictionary* child = AsDictionary(*slot)) return child;
  }
  return nullptr;
}

void VkDtDictionary::IndexNames() const {
  m_byName = std::make_unique<NameIndex>();
  for (VkDtDictItem** slot = List::GetFirst(); slot; slot = List::GetNext(slot)) {
    if (VkDtDictionary* child = AsDictionary(*slot)) m_byName->emplace(child->GetName(), child); // the first
  }
}

// A search that follows a change walks; the index is for those who search again.
VkDtDictionary* VkDtDictionary::FindDict(const CString& name) {
  if (!m_byName) {
    if (GetLength() <= kFewChildren || ++m_finds < 2) return FindByWalk(name);
    IndexNames();
  }
  const auto found = m_byName->find(name);
  return found == m_byName->end() ? nullptr : found->second;
}

VkDtDictionary* VkDtDictionary::FindOrAddDict(const CString& name) {
  if (VkDtDictionary* found = FindDict(name)) return found;
  auto child = std::make_unique<VkDtDictionary>(nullptr, nullptr);
  xml::ItemAccess::SetName(*child, name); // whole, so that it is found again, whatever characters it has
  // The one change after which the index is known to be right.
  std::unique_ptr<NameIndex> index = std::move(m_byName);
  const int finds = m_finds;
  Append(child.get());
  m_byName = std::move(index);
  m_finds = finds;
  if (m_byName) m_byName->emplace(name, child.get());
  return child.release();
}

void VkDtDictionary::ForgetNames() const {
  m_byName.reset();
  m_finds = 0;
}

VkDtDictItem*& VkDtDictionary::GetCurData() {
  ForgetNames();
  return List::GetCurData();
}

VkDtDictItem** VkDtDictionary::GetFirst() const {
  ForgetNames();
  return List::GetFirst();
}

VkDtDictItem** VkDtDictionary::GetNext(VkDtDictItem* const* slot) const {
  ForgetNames();
  return List::GetNext(slot);
}

VkDtDictItem** VkDtDictionary::GetPre(VkDtDictItem* const* slot) const {
  ForgetNames();
  return List::GetPre(slot);
}

VkDtDictItem** VkDtDictionary::GetLast() const {
  ForgetNames();
  return List::GetLast();
}

VkDtDictItem*& VkDtDictionary::GetAt(int index) const {
  ForgetNames();
  return List::GetAt(index);
}

void VkDtDictionary::InsertAfterCur(VkDtDictItem* const& item) {
  ForgetNames();
  List::InsertAfterCur(item);
}

void VkDtDictionary::LinksChanged(int index) {
  ForgetNames();
  List::LinksChanged(index);
}
