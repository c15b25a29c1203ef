// The doubly linked list with an index of every group-th node: any element is reached in fewer steps than a
// group has elements. An insertion or deletion moves the entries of the index behind it by one node each.
#pragma once

#include "plugin/base/containers/VkDList.h"
#include "plugin/base/containers/VkDynArray.h"

template <class T> class ZP_EXPORT VkXList : public VkDList<T> {
 public:
  using Base = VkDList<T>;
  using typename Base::DNode;
  using typename Base::Node;

  // So many elements T(), elements in a group (at least 1), allocation unit of the index.
  explicit VkXList(int count = 0, int group = 64, int allocUnit = 10);
  VkXList(const VkXList& other);
  using Base::operator=;
  VkXList& operator=(const VkXList& other);

  void InsertAfterCur(const T& value) override;
  bool DelCur() override;

  int GetGroupSize() const { return m_nGroup; }
  // Rebuilds the index from that entry on; the entries before it are right.
  void UpdateGroup(int from);

 protected:
  using Base::m_nCursor;
  using Base::m_nLength;
  using Base::m_pCurrent;
  using Base::m_pLast;
  using Base::m_pSentinel;

  Node* NodeAt(int index) const override;
  void LinksChanged(int index) override { UpdateGroup(FirstGroupFrom(index)); }

 private:
  int FirstGroupFrom(int index) const { return index / m_nGroup + (index % m_nGroup > 0); }

  VkDynArray<DNode*> m_index; // entry k is the node at index k * m_nGroup
  int m_nGroup;
};

template <class T>
VkXList<T>::VkXList(int count, int group, int allocUnit)
    : m_index(0, allocUnit), m_nGroup(std::max(group, 1)) {
  this->SetLength(count, true);
}

template <class T>
VkXList<T>::VkXList(const VkXList& other) : VkXList(0, other.m_nGroup, other.m_index.GetAllocUnit()) {
  this->DeepCopy(other);
}

template <class T> VkXList<T>& VkXList<T>::operator=(const VkXList& other) {
  this->DeepCopy(other);
  return *this;
}

template <class T> void VkXList<T>::InsertAfterCur(const T& value) {
  Base::InsertAfterCur(value);
  if (m_nCursor < m_nLength - 1) {
    for (int k = FirstGroupFrom(m_nCursor); k < m_index.GetLength(); ++k)
      m_index.GetAt(k) = m_index.GetAt(k)->previous;
  }
  const std::int64_t covered = std::int64_t{m_index.GetLength()} * m_nGroup; // cheaper than a remainder
  if (covered < m_nLength) m_index.Append(static_cast<DNode*>(m_pLast));
}

template <class T> bool VkXList<T>::DelCur() {
  if (this->IsOut()) return false;
  for (int k = FirstGroupFrom(m_nCursor); k < m_index.GetLength(); ++k)
    m_index.GetAt(k) = static_cast<DNode*>(m_index.GetAt(k)->next);
  Base::DelCur();
  if (m_nLength % m_nGroup == 0) m_index.DelTail(); // it has come to the sentinel
  return true;
}

template <class T> void VkXList<T>::UpdateGroup(int from) {
  from = std::clamp(from, 0, m_index.GetLength());
  m_index.ReAllocate(from);
  Node* node = from > 0 ? m_index.GetAt(from - 1) : m_pSentinel->next;
  for (int i = from > 0 ? (from - 1) * m_nGroup : 0; i < m_nLength; ++i, node = node->next) {
    if (i == m_index.GetLength() * m_nGroup) m_index.Append(static_cast<DNode*>(node));
  }
}

template <class T> typename VkXList<T>::Node* VkXList<T>::NodeAt(int index) const {
  Node* node = m_index.GetAt(index / m_nGroup);
  for (int steps = index % m_nGroup; steps > 0; --steps) node = node->next;
  return node;
}
