// Which copy came of which object when objects are copied together.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <unordered_map>
#include <vector>

class AcDbIdMapping {
 public:
  struct Pair {
    AcDbObjectId key;       // the original
    AcDbObjectId value;     // its copy, or what stands for it
    bool isCloned = true;   // false: an object that was there before stands for it
    bool isPrimary = false; // named by the caller
  };

  // The copy of an original, null where there is none.
  AcDbObjectId valueOf(const AcDbObjectId& key) const {
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? AcDbObjectId() : m_pairs[found->second].value;
  }
  bool compute(Pair& pair) const {
    const auto found = m_byKey.find(pair.key);
    if (found != m_byKey.end()) pair = m_pairs[found->second];
    return found != m_byKey.end();
  }
  // In the order in which they were copied.
  const std::vector<Pair>& pairs() const { return m_pairs; }
  void assign(const Pair& pair) {
    const auto [entry, isNew] = m_byKey.try_emplace(pair.key, m_pairs.size());
    if (isNew)
      m_pairs.push_back(pair);
    else
      m_pairs[entry->second] = pair;
  }

 private:
  std::vector<Pair> m_pairs;
  std::unordered_map<AcDbObjectId, std::size_t> m_byKey;
};
