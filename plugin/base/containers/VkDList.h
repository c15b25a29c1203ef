// The doubly linked member of the family: a step backwards costs as little as one ahead, and an index is
// reached from the nearest of both ends and the cursor.
#pragma once

#include <cstdlib>

#include "plugin/base/containers/VkDListNode.h"
#include "plugin/base/containers/VkList.h"

template <class T> class ZP_EXPORT VkDList : public VkList<T> {
 public:
  using Base = VkList<T>;
  using typename Base::DNode;
  using typename Base::Node;

  explicit VkDList(int count = 0); // so many elements T()
  VkDList(const VkDList& other);
  using Base::operator=;
  VkDList& operator=(const VkDList& other);

 protected:
  using Base::m_nCursor;
  using Base::m_nLength;
  using Base::m_pCurrent;
  using Base::m_pLast;
  using Base::m_pSentinel;

  Node* NodeAt(int index) const override;
};

template <class T> VkDList<T>::VkDList(int count) : Base(Base::Links::kBothWays) {
  this->SetLength(count, true);
}

template <class T> VkDList<T>::VkDList(const VkDList& other) : VkDList() {
  this->DeepCopy(other);
}

template <class T> VkDList<T>& VkDList<T>::operator=(const VkDList& other) {
  this->DeepCopy(other);
  return *this;
}

template <class T> typename VkDList<T>::Node* VkDList<T>::NodeAt(int index) const {
  Node* node = m_pSentinel; // stands at -1 and at the length alike
  int steps = index + 1 <= m_nLength - index ? index + 1 : index - m_nLength;
  if (m_nCursor >= 0 && std::abs(index - m_nCursor) < std::abs(steps)) {
    node = m_pCurrent;
    steps = index - m_nCursor;
  }
  for (; steps > 0; --steps) node = node->next;
  for (; steps < 0; ++steps) node = static_cast<DNode*>(node)->previous;
  return node;
}
