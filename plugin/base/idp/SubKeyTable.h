// The sub-keys of one node in the order of their creation, found by name at the same cost however many there
// are: a numbered list by the number itself, one behind the last that was found at once, since records are
// mostly read in their order, a few sub-keys one by one, more through an index that the first search builds.
#pragma once

#include <cstdint>
#include <vector>

#include "plugin/base/idp/KeyIndex.h"
#include "plugin/base/idp/SubKey.h"

namespace idp {

class SubKeyTable {
 public:
  SubKeyTable() = default;
  ~SubKeyTable() { Clear(); }
  SubKeyTable(const SubKeyTable&) = delete;
  SubKeyTable& operator=(const SubKeyTable&) = delete;

  // References to sub-keys are good until the table changes; their nodes stay where they are.
  int GetCount() const { return static_cast<int>(m_subKeys.size() - m_gaps); }
  SubKey& At(int index) { // 0 <= index < GetCount()
    if (m_gaps != m_leadingGaps) CloseGaps();
    return m_subKeys[m_leadingGaps + static_cast<std::size_t>(index)];
  }
  SubKey* Find(const CompactValue& key); // null when it is absent
  SubKey& Append(CompactValue key);      // the key must be absent
  bool Remove(const CompactValue& key);  // with all below it; false when it is absent

  // Removes all with all below them, in constant stack space however deep they are nested.
  void Clear() noexcept;

 private:
  static constexpr std::size_t kFirstCapacity = 4;
  static constexpr std::size_t kIndexFrom = 17;
  static constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

  std::size_t FindPlace(const CompactValue& key);
  std::size_t SearchPlace(const CompactValue& key);
  void BuildIndex();
  void CloseGaps();
  void MoveNodesTo(CIDPEx*& list);

  std::vector<SubKey> m_subKeys;
  KeyIndex m_index;                // empty until the first search that needs it
  std::uint32_t m_gaps = 0;        // removed ones in m_subKeys; the last element is never one
  std::uint32_t m_leadingGaps = 0; // those before the first that is not removed
  std::uint32_t m_expected = 0;    // where the next search looks first; the key there decides
  bool m_numbered = true;          // the keys are "0", "1", "2" and so on, each at its place
  CIDPEx* m_nextToFree = nullptr;  // links the nodes that Clear still has to free
};

} // namespace idp
