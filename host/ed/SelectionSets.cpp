#include "host/ed/SelectionSets.h"

#include <algorithm>

bool SelectionSet::add(const AcDbObjectId& id) {
  if (!m_members.insert(id).second) return false;
  m_ids.push_back(id);
  return true;
}

bool SelectionSet::remove(const AcDbObjectId& id) {
  if (m_members.erase(id) == 0) return false;
  m_ids.erase(std::find(m_ids.begin(), m_ids.end(), id));
  return true;
}

SelectionSets& SelectionSets::instance() {
  static auto* sets = new SelectionSets; // never destroyed: plug-ins free theirs from their own destructors
  return *sets;
}

// A set's name has no second part, an entity's always has.
void SelectionSets::create(SelectionSet set, long long* name) {
  name[0] = m_next;
  name[1] = 0;
  m_sets.emplace(m_next++, std::move(set));
}

SelectionSet* SelectionSets::find(const long long* name) {
  if (!name || name[1] != 0) return nullptr;
  const auto found = m_sets.find(name[0]);
  return found == m_sets.end() ? nullptr : &found->second;
}

bool SelectionSets::free(const long long* name) {
  return name && name[1] == 0 && m_sets.erase(name[0]) > 0;
}
