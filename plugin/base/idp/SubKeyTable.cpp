// Removing leaves a gap that is closed at the next access by position, so that emptying a large table key by
// key, from either end or in any order, does not move the rest each time.
#include "plugin/base/idp/SubKeyTable.h"

#include <algorithm>
#include <optional>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/NodeAccess.h"

namespace idp {

namespace {

// The number that a key of a numbered list stands for: decimal digits without a leading zero.
std::optional<std::size_t> ListNumber(std::string_view key) {
  if (key.empty() || key.size() > 9 || (key[0] == '0' && key.size() > 1)) return std::nullopt;
  std::size_t number = 0;
  for (const char c : key) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + static_cast<std::size_t>(c - '0');
  }
  return number;
}

} // namespace

void SubKeyTable::MoveNodesTo(CIDPEx*& list) {
  for (SubKey& subKey : m_subKeys) {
    if (subKey.node == nullptr) continue;
    NodeAccess::Table(*subKey.node).m_nextToFree = list;
    list = std::exchange(subKey.node, nullptr);
  }
}

void SubKeyTable::Clear() noexcept {
  CIDPEx* pending = nullptr;
  MoveNodesTo(pending);
  while (pending != nullptr) {
    CIDPEx* node = pending;
    SubKeyTable& table = NodeAccess::Table(*node);
    pending = table.m_nextToFree;
    table.MoveNodesTo(pending);
    delete node;
  }
  std::vector<SubKey>().swap(m_subKeys);
  m_index.Clear();
  m_gaps = 0;
  m_leadingGaps = 0;
  m_numbered = true;
}

std::size_t SubKeyTable::FindPlace(const CompactValue& key) {
  if (m_numbered) {
    const std::size_t place = ListNumber(key.Text()).value_or(kNowhere);
    return place < m_subKeys.size() ? place : kNowhere;
  }
  std::size_t place = m_expected;
  if (place >= m_subKeys.size() || !key.IsSameText(m_subKeys[place].key)) place = SearchPlace(key);
  if (place != kNowhere) m_expected = static_cast<std::uint32_t>(place + 1);
  return place;
}

std::size_t SubKeyTable::SearchPlace(const CompactValue& key) {
  if (m_subKeys.size() < kIndexFrom) {
    for (std::size_t place = 0; place < m_subKeys.size(); ++place) {
      if (key.IsSameText(m_subKeys[place].key)) return place;
    }
    return kNowhere;
  }
  if (m_index.IsEmpty()) BuildIndex();
  // An entry may be left over from a sub-key that was removed, so the key decides.
  const auto isItAt = [&](std::size_t place) {
    return place < m_subKeys.size() && key.IsSameText(m_subKeys[place].key);
  };
  return m_index.Find(key.Text(), isItAt).value_or(kNowhere);
}

SubKey* SubKeyTable::Find(const CompactValue& key) {
  const std::size_t place = FindPlace(key);
  return place == kNowhere ? nullptr : &m_subKeys[place];
}

SubKey& SubKeyTable::Append(CompactValue key) {
  if (m_subKeys.empty()) m_subKeys.reserve(kFirstCapacity);
  if (m_numbered && ListNumber(key.Text()) != m_subKeys.size()) m_numbered = false;
  SubKey& added = m_subKeys.emplace_back(std::move(key));
  if (!m_index.IsEmpty()) m_index.Add(added.key.Text(), m_subKeys.size() - 1);
  return added;
}

bool SubKeyTable::Remove(const CompactValue& key) {
  const std::size_t place = FindPlace(key);
  if (place == kNowhere) return false;
  m_subKeys[place].Remove();
  ++m_gaps;
  if (place + 1 < m_subKeys.size()) m_numbered = false;
  while (!m_subKeys.empty() && m_subKeys.back().IsRemoved()) {
    m_subKeys.pop_back();
    --m_gaps;
  }
  m_leadingGaps = std::min(m_leadingGaps, m_gaps);
  while (m_leadingGaps < m_gaps && m_subKeys[m_leadingGaps].IsRemoved()) ++m_leadingGaps;
  if (m_subKeys.empty())
    Clear();
  else if (m_gaps * std::size_t{2} > m_subKeys.size())
    CloseGaps();
  return true;
}

void SubKeyTable::CloseGaps() {
  std::erase_if(m_subKeys, [](const SubKey& subKey) { return subKey.IsRemoved(); });
  m_gaps = 0;
  m_leadingGaps = 0;
  m_index.Clear(); // places have moved
}

void SubKeyTable::BuildIndex() {
  m_index.Reserve(m_subKeys.size());
  for (std::size_t place = 0; place < m_subKeys.size(); ++place) {
    if (!m_subKeys[place].IsRemoved()) m_index.Add(m_subKeys[place].key.Text(), place);
  }
}

} // namespace idp
