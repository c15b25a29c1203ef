// The selection sets that plug-ins hold by name, until they free them.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ed/adsNames.h"

#include <map>
#include <unordered_set>
#include <vector>

// Entities in the order in which they were selected, each once.
class SelectionSet {
 public:
  SelectionSet() = default;
  explicit SelectionSet(const std::vector<AcDbObjectId>& ids) {
    for (const auto& id : ids) add(id);
  }
  bool add(const AcDbObjectId& id);
  bool remove(const AcDbObjectId& id);
  bool has(const AcDbObjectId& id) const { return m_members.contains(id); }
  const std::vector<AcDbObjectId>& ids() const { return m_ids; }

 private:
  std::vector<AcDbObjectId> m_ids;
  std::unordered_set<AcDbObjectId> m_members;
};

class SelectionSets {
 public:
  static SelectionSets& instance();

  void create(SelectionSet set, long long* name);
  // Null for a name that is none of a set.
  SelectionSet* find(const long long* name);
  bool free(const long long* name);
  // Sets that nobody has freed; a number that grows with every command tells of a plug-in that forgets to.
  std::size_t count() const { return m_sets.size(); }

 private:
  std::map<long long, SelectionSet> m_sets;
  long long m_next = 1;
};
