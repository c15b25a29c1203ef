#include "host/db/SpatialIndex.h"

#include <boost/function_output_iterator.hpp>
#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <cmath>

namespace {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

using Point = bg::model::point<double, 2, bg::cs::cartesian>;
using Box = bg::model::box<Point>;
using Value = std::pair<Box, std::size_t>;
constexpr std::size_t kNodeSize = 16;

bool isBounded(const ge::Box2d& box) {
  return std::isfinite(box.minX) && std::isfinite(box.minY) && std::isfinite(box.maxX) &&
         std::isfinite(box.maxY);
}

Box boxOf(const ge::Box2d& box) {
  return {{box.minX, box.minY}, {box.maxX, box.maxY}};
}

bool isSame(const SpatialIndex::Entry& a, const SpatialIndex::Entry& b) {
  return a.key == b.key && a.box.minX == b.box.minX && a.box.minY == b.box.minY && a.box.maxX == b.box.maxX &&
         a.box.maxY == b.box.maxY;
}

} // namespace

struct SpatialIndex::Tree {
  bgi::rtree<Value, bgi::rstar<kNodeSize>> tree;
};

SpatialIndex::SpatialIndex() : m_tree(std::make_unique<Tree>()) {}

SpatialIndex::SpatialIndex(std::span<const Entry> entries) : SpatialIndex() {
  std::vector<Value> values;
  values.reserve(entries.size());
  for (const Entry& entry : entries) {
    if (entry.box.IsEmpty()) continue;
    if (isBounded(entry.box))
      values.emplace_back(boxOf(entry.box), entry.key);
    else
      m_unbounded.push_back(entry);
  }
  m_tree->tree = decltype(m_tree->tree)(values); // packed
}

SpatialIndex::~SpatialIndex() = default;
SpatialIndex::SpatialIndex(SpatialIndex&&) noexcept = default;
SpatialIndex& SpatialIndex::operator=(SpatialIndex&&) noexcept = default;

void SpatialIndex::insert(const Entry& entry) {
  if (entry.box.IsEmpty()) return;
  if (isBounded(entry.box))
    m_tree->tree.insert({boxOf(entry.box), entry.key});
  else
    m_unbounded.push_back(entry);
}

bool SpatialIndex::remove(const Entry& entry) {
  if (entry.box.IsEmpty()) return false;
  if (isBounded(entry.box)) return m_tree->tree.remove({boxOf(entry.box), entry.key}) > 0;
  const auto found = std::find_if(m_unbounded.begin(), m_unbounded.end(),
                                  [&](const Entry& other) { return isSame(other, entry); });
  if (found == m_unbounded.end()) return false;
  m_unbounded.erase(found);
  return true;
}

std::size_t SpatialIndex::size() const {
  return m_tree->tree.size() + m_unbounded.size();
}

void SpatialIndex::visit(const ge::Box2d& box, const std::function<void(std::size_t)>& visitor) const {
  if (box.IsEmpty()) return;
  for (const Entry& entry : m_unbounded)
    if (entry.box.Overlaps(box)) visitor(entry.key);
  m_tree->tree.query(bgi::intersects(boxOf(box)), boost::make_function_output_iterator(
                                                      [&](const Value& value) { visitor(value.second); }));
}

std::vector<std::size_t> SpatialIndex::overlapping(const ge::Box2d& box) const {
  std::vector<std::size_t> keys;
  visit(box, [&](std::size_t key) { keys.push_back(key); });
  return keys;
}
