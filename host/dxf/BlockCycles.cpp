#include "host/dxf/BlockCycles.h"

#include "host/db/AcDbBlockReference.h"

#include <algorithm>
#include <unordered_map>

namespace {

constexpr std::size_t kUnseen = static_cast<std::size_t>(-1);

// Groups of blocks that contain one another (strongly connected components), found without recursion: a
// drawing may nest blocks deeper than the stack.
class BlockGroups {
 public:
  std::size_t indexOf(const AcDbObjectId& block) {
    const auto [entry, isNew] = m_index.try_emplace(block, m_nodes.size());
    if (isNew) m_nodes.emplace_back();
    return entry->second;
  }
  void addInsertion(std::size_t block, std::size_t inner) { m_nodes[block].inner.push_back(inner); }

  void find() {
    for (std::size_t i = 0; i < m_nodes.size(); ++i)
      if (m_nodes[i].order == kUnseen) visit(i);
  }
  bool isSameGroup(std::size_t a, std::size_t b) const { return m_nodes[a].group == m_nodes[b].group; }

 private:
  struct Node {
    std::vector<std::size_t> inner;
    std::size_t next = 0; // of inner
    std::size_t order = kUnseen;
    std::size_t lowest = 0; // order that it can reach among the open ones
    std::size_t group = kUnseen;
  };

  void enter(std::size_t index) {
    Node& node = m_nodes[index];
    node.order = node.lowest = m_count++;
    m_path.push_back(index);
    m_open.push_back(index);
  }

  void visit(std::size_t start) {
    enter(start);
    while (!m_path.empty()) {
      const std::size_t index = m_path.back();
      Node& node = m_nodes[index];
      if (node.next < node.inner.size()) {
        const std::size_t inner = node.inner[node.next++];
        if (m_nodes[inner].order == kUnseen)
          enter(inner);
        else if (m_nodes[inner].group == kUnseen)
          node.lowest = std::min(node.lowest, m_nodes[inner].order);
        continue;
      }
      m_path.pop_back();
      if (!m_path.empty())
        m_nodes[m_path.back()].lowest = std::min(m_nodes[m_path.back()].lowest, node.lowest);
      if (node.lowest == node.order) close(index);
    }
  }

  void close(std::size_t root) {
    for (std::size_t member = kUnseen; member != root;) {
      member = m_open.back();
      m_open.pop_back();
      m_nodes[member].group = root;
    }
  }

  std::unordered_map<AcDbObjectId, std::size_t> m_index;
  std::vector<Node> m_nodes;
  std::vector<std::size_t> m_path;
  std::vector<std::size_t> m_open;
  std::size_t m_count = 0;
};

} // namespace

std::vector<const AcDbBlockReference*>
dxf::insertionsInCycles(const std::vector<const AcDbBlockReference*>& insertions) {
  BlockGroups groups;
  std::vector<std::pair<std::size_t, std::size_t>> edges;
  edges.reserve(insertions.size());
  for (const AcDbBlockReference* insertion : insertions) {
    edges.emplace_back(groups.indexOf(insertion->ownerId()), groups.indexOf(insertion->blockTableRecord()));
    groups.addInsertion(edges.back().first, edges.back().second);
  }
  groups.find();
  std::vector<const AcDbBlockReference*> found;
  // Two blocks of one group contain one another; a block that is a group by itself only by inserting itself,
  // and then both ends of the insertion are the same.
  for (std::size_t i = 0; i < edges.size(); ++i)
    if (groups.isSameGroup(edges[i].first, edges[i].second)) found.push_back(insertions[i]);
  return found;
}
