// The bodies of VkList.h, which includes it.
#pragma once

#include <algorithm>
#include <vector>

#include "plugin/base/containers/VkList.h"

template <class T> VkList<T>::VkList(Links links) : m_links(links) {
  m_pCurrent = m_pLast = m_pSentinel = new DNode;
  Join<DNode>(m_pSentinel, m_pSentinel);
}

template <class T> VkList<T>::VkList(int count) : VkList(Links::kAhead) {
  VkList::SetLength(count, true);
}

template <class T> VkList<T>::VkList(const VkList& other) : VkList(Links::kAhead) {
  this->DeepCopy(other);
}

template <class T> VkList<T>& VkList<T>::operator=(const VkList& other) {
  this->DeepCopy(other);
  return *this;
}

template <class T> VkList<T>::~VkList() {
  DropChain(m_pSentinel->next);
  delete static_cast<DNode*>(m_pSentinel);
}

template <class T> void VkList<T>::DropNode(Node* node) const {
  if (HasWayBack()) {
    delete static_cast<DNode*>(node);
  } else {
    delete node;
  }
}

template <class T> void VkList<T>::DropChain(Node* first) const {
  while (first != m_pSentinel) {
    Node* const next = first->next;
    DropNode(first);
    first = next;
  }
}

template <class T> template <class Kind> VkListNode<T>* VkList<T>::Add(Node* node, const T& value) {
  Node* const added = new Kind(value);
  Join<Kind>(added, node->next);
  Join<Kind>(node, added);
  if (node == m_pLast) m_pLast = added;
  ++m_nLength;
  return added;
}

template <class T> void VkList<T>::CutBehind(Node* node, int length) {
  JoinNodes(node, m_pSentinel);
  m_pLast = node;
  m_nLength = length;
}

template <class T> void VkList<T>::SetLength(int count, bool keep) {
  const int kept = keep ? std::clamp(count, 0, m_nLength) : 0;
  if (kept < m_nLength) {
    Node* const last = kept > 0 ? NodeAt(kept - 1) : m_pSentinel;
    DropChain(last->next);
    CutBehind(last, kept);
  }
  while (m_nLength < count) AddBehind(m_pLast, T());
  LinksChanged(kept);
  if (m_nCursor >= kept) Restore(m_nCursor);
}

template <class T> void VkList<T>::Reset() {
  this->SetLength(0, false);
}

template <class T> bool VkList<T>::MoveToPre() {
  if (m_pCurrent == m_pSentinel) return MoveToLast();
  return Step(nullptr, NodeBefore(m_pCurrent), m_nCursor - 1);
}

template <class T> bool VkList<T>::MoveTo(int index) {
  return Step(nullptr, this->IsValidIndex(index) ? NodeAt(index) : m_pSentinel, index);
}

template <class T> void VkList<T>::Restore(int index) {
  Step(nullptr, m_pSentinel, -1); // the old node may be gone
  this->MoveTo(index);
}

template <class T> VkListNode<T>* VkList<T>::NodeAt(int index) const {
  const bool ahead = m_nCursor >= 0 && index >= m_nCursor;
  Node* node = ahead ? m_pCurrent : m_pSentinel->next;
  for (int steps = ahead ? index - m_nCursor : index; steps > 0; --steps) node = node->next;
  return node;
}

template <class T> VkListNode<T>* VkList<T>::NodeBefore(Node* node) const {
  if (HasWayBack()) return static_cast<DNode*>(node)->previous;
  if (node == m_pCurrent && m_pBefore) return m_pBefore;
  Node* before = m_pSentinel;
  while (before->next != node) before = before->next;
  return before;
}

template <class T> T& VkList<T>::GetAt(int index) const {
  assert(this->IsValidIndex(index));
  return NodeAt(index)->value;
}

template <class T> void VkList<T>::InsertAfterCur(const T& value) {
  Step(m_pCurrent, AddBehind(m_pCurrent, value), m_nCursor + 1);
}

template <class T> void VkList<T>::InsertCur(const T& value) {
  this->MoveToPre();
  InsertAfterCur(value);
}

template <class T> void VkList<T>::InsertHead(const T& value) {
  Step(m_pLast, m_pSentinel, -1);
  InsertAfterCur(value);
}

template <class T> int VkList<T>::Append(const T& value) {
  Step(nullptr, m_pLast, m_nLength - 1);
  InsertAfterCur(value);
  return m_nCursor;
}

template <class T> bool VkList<T>::DelCur() {
  if (m_pCurrent == m_pSentinel) return false;
  Node* const doomed = m_pCurrent;
  Step(nullptr, NodeBefore(doomed), m_nCursor - 1);
  JoinNodes(m_pCurrent, doomed->next);
  if (m_pLast == doomed) m_pLast = m_pCurrent;
  --m_nLength;
  DropNode(doomed);
  return true;
}

template <class T> void VkList<T>::DetachAfterCur() {
  CutBehind(m_pCurrent, m_nCursor + 1);
  LinksChanged(m_nLength);
}

template <class T> void VkList<T>::Detach() {
  Step(nullptr, m_pSentinel, -1);
  DetachAfterCur();
}

template <class T> void VkList<T>::DetachAfter(int index) {
  if (index < -1 || index >= m_nLength) return;
  MoveTo(index);
  DetachAfterCur();
}

template <class T> int VkList<T>::Conbine(VkList& other, int from) {
  if (&other == this || !other.IsValidIndex(from)) return m_nLength;
  Node* const first = other.NodeAt(from);
  Node* const last = other.m_pLast;
  const int count = other.m_nLength - from;
  const int oldLength = m_nLength;
  other.DetachAfter(from - 1); // the chain still ends at other's sentinel
  if (m_links == other.m_links) {
    JoinNodes(m_pLast, first);
    JoinNodes(last, m_pSentinel);
    m_pLast = last;
    m_nLength += count;
  } else {
    for (Node* node = first; node != other.m_pSentinel; node = node->next) AddBehind(m_pLast, node->value);
    other.DropChain(first);
  }
  LinksChanged(oldLength);
  return m_nLength;
}

template <class T> void VkList<T>::ReverseList() {
  Node* const oldFirst = m_pSentinel->next;
  Node* before = m_pSentinel;
  for (Node* node = oldFirst; node != m_pSentinel;) {
    Node* const next = node->next;
    JoinNodes(node, before);
    before = node;
    node = next;
  }
  JoinNodes(m_pSentinel, before);
  m_pLast = oldFirst;
  LinksChanged(0);
  Restore(m_nCursor);
}

template <class T> void VkList<T>::Rotate(int from, int to) {
  if (from == to || m_nLength == 0) return;
  const int head = ((from - to) % m_nLength + m_nLength) % m_nLength;
  if (head > 0) {
    Node* const newLast = NodeAt(head - 1);
    Node* const newFirst = newLast->next;
    JoinNodes(m_pLast, m_pSentinel->next);
    JoinNodes(newLast, m_pSentinel);
    JoinNodes(m_pSentinel, newFirst);
    m_pLast = newLast;
    LinksChanged(0);
  }
  MoveToFirst();
}

template <class T> void VkList<T>::Sort(bool ascending) {
  if (ascending) {
    SortBy(vk::Ascending(), vk::NotANumber());
  } else {
    SortBy(vk::Descending(), vk::NotANumber());
  }
}

// Inserting each element before the first one beyond it is a stable sort, done as one over the nodes. A hole,
// beyond which nothing is, would stay behind all elements before it and be passed by what they stand beyond:
// so it sorts as if it were equal to the most beyond of the elements before it, or stays at the head.
template <class T>
template <class Beyond, class IsHole>
void VkList<T>::SortBy(Beyond beyond, IsHole isHole) {
  Node* head = m_pSentinel; // the last of the holes at the head
  while (head->next != m_pSentinel && isHole(head->next->value)) head = head->next;
  using Entry = vk::SortEntry<T, Node>;
  std::vector<Entry> entries;
  entries.reserve(static_cast<std::size_t>(m_nLength));
  const T* most = nullptr;
  for (Node* node = head->next; node != m_pSentinel; node = node->next) {
    const bool hole = isHole(node->value);
    if (!hole && (!most || beyond(node->value, *most))) most = &node->value;
    entries.emplace_back(hole ? *most : node->value, node);
  }
  std::stable_sort(entries.begin(), entries.end(), vk::EntryBefore<Beyond>{beyond});
  m_pLast = head;
  for (const Entry& entry : entries) {
    JoinNodes(m_pLast, entry.node);
    m_pLast = entry.node;
  }
  JoinNodes(m_pLast, m_pSentinel);
  LinksChanged(0);
  Restore(m_nCursor);
}

template <class T> int VkList<T>::Find(const T& value, int from, int to) const {
  return this->FindBy(value, from, to, [](const T* at) { return &NodeOf(at)->next->value; });
}
