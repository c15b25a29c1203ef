// The singly linked member of the family: nodes in a ring that a sentinel closes. Splicing moves nodes
// between lists without copying a value. For steps backwards take VkDList, for access by index VkXList.
#pragma once

#include <cassert>
#include <type_traits>

#include "plugin/base/containers/VkDListNode.h"
#include "plugin/base/containers/VkDynArrayBase.h"

// The cursor is on an element or, at -1, on the sentinel: behind the last and before the first element at
// once. A walk ends there and the next step starts over, and an index out of range leads there. So InsertCur
// and Insert at such an index append.
template <class T> class ZP_EXPORT VkList : public VkDynArrayBase<T> {
 public:
  using Base = VkDynArrayBase<T>;
  using Node = VkListNode<T>;
  using typename Base::Compare;

  explicit VkList(int count = 0); // so many elements T()
  VkList(const VkList& other);
  using Base::operator=;
  VkList& operator=(const VkList& other);
  ~VkList() override;

  void ReAllocate(int count) override { this->SetLength(count, true); }
  void SetLength(int count, bool keep) override;
  void Reset() override;
  T& GetCurData() override { return m_pCurrent->value; }
  bool MoveToFirst() override { return Step(m_pSentinel, m_pSentinel->next, 0); }
  bool MoveToNext() override { return Step(m_pCurrent, m_pCurrent->next, m_nCursor + 1); }
  bool MoveToPre() override;
  bool MoveToLast() override { return Step(nullptr, m_pLast, m_nLength - 1); }
  bool MoveTo(int index) override;
  T* GetFirst() const override { return ValueOf(m_pSentinel->next); }
  T* GetNext(const T* value) const override { return ValueOf(NodeOf(value)->next); }
  T* GetPre(const T* value) const override { return ValueOf(NodeBefore(NodeOf(value))); }
  T* GetLast() const override { return ValueOf(m_pLast); }
  T& GetAt(int index) const override;
  void InsertCur(const T& value) override;
  void InsertHead(const T& value) override;
  int Append(const T& value) override;
  bool DelCur() override; // the element before becomes current
  void Sort(Compare compare) override { SortBy(vk::ByCompare<T>{compare}, vk::NoHoles()); }
  void Sort(bool ascending) override;

  virtual void InsertAfterCur(const T& value); // the new element becomes current
  // Makes the current element the last one. What lay behind it is not freed: the caller has taken it over.
  virtual void DetachAfterCur();
  // Moves the elements of other from the index on to the end of this list, without copying when both lists
  // have the same kind of node; other's cursor goes to its new end. The new length; a bad index changes
  // nothing.
  virtual int Conbine(VkList& other, int from);
  virtual void ReverseList();
  // Turns the ring so that the element at from ends up at to; the cursor goes to 0. Nothing when both are
  // equal.
  virtual void Rotate(int from, int to);

  // As in the base, without a virtual call for each element.
  using Base::Find;
  int Find(const T& value, int from = 0, int to = -1) const;

  void Detach();               // forgets all nodes: the caller has taken them over
  void DetachAfter(int index); // -1 for all; nothing for a bad index
  Node* GetCurPos() const { return m_pCurrent; }
  // out takes over the elements from the index on at its end; the cursor goes to the element before.
  void SplitAt(int index, VkList& out) { out.Conbine(*this, index); }
  void SplitAtCur(VkList& out) { SplitAt(m_nCursor, out); }

 protected:
  using Base::m_nCursor;
  using Base::m_nLength;

  using DNode = VkDListNode<T>;

  // The kind of all nodes, with a way back or without. It is asked for each node that is made, joined or
  // freed, where a virtual call would cost more than the work.
  enum class Links { kAhead, kBothWays };
  explicit VkList(Links links);
  virtual Node* NodeAt(int index) const; // the index is valid
  // Told after the links at the index and behind have changed, but for single insertions and deletions.
  virtual void LinksChanged(int) {}

  template <class Beyond, class IsHole> void SortBy(Beyond beyond, IsHole isHole);
  bool KeepsValues(int, bool keep) const { return keep; } // whether SetLength keeps values at all
  static Node* NodeOf(const T* value) { return reinterpret_cast<Node*>(const_cast<T*>(value)); }

  Node* m_pCurrent;
  Node* m_pSentinel; // a DNode in lists of either kind
  Node* m_pLast;     // the sentinel in an empty list

 private:
  bool HasWayBack() const { return m_links == Links::kBothWays; }
  template <class Kind> static void Join(Node* first, Node* second) {
    first->next = second;
    if constexpr (std::is_same_v<Kind, DNode>)
      static_cast<DNode*>(second)->previous = static_cast<DNode*>(first);
  }
  void JoinNodes(Node* first, Node* second) const {
    HasWayBack() ? Join<DNode>(first, second) : Join<Node>(first, second);
  }
  // Makes a node behind the other.
  template <class Kind> Node* Add(Node* node, const T& value);
  Node* AddBehind(Node* node, const T& value) {
    return HasWayBack() ? Add<DNode>(node, value) : Add<Node>(node, value);
  }
  void DropNode(Node* node) const;
  Node* NodeBefore(Node* node) const;

  T* ValueOf(Node* node) const { return node == m_pSentinel ? nullptr : &node->value; }
  // Makes the node current. before is the node before it where that is known.
  bool Step(Node* before, Node* node, int index) {
    m_pBefore = before;
    m_pCurrent = node;
    m_nCursor = node == m_pSentinel ? -1 : index;
    return node != m_pSentinel;
  }
  void Restore(int index);                // puts the cursor there anew
  void CutBehind(Node* node, int length); // makes the node the last one
  void DropChain(Node* first) const;

  Node* m_pBefore = nullptr; // the node before the current one, or null where it is not known
  const Links m_links;
};

#include "plugin/base/containers/VkList.inl.h"
