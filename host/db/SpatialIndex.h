// Finds what lies at a place of the plane: boxes with a key each, searched by a box. An R-tree, filled at
// once or changed as the drawing changes.
#pragma once

#include "host/ge/Box2d.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <vector>

class SpatialIndex {
 public:
  struct Entry {
    ge::Box2d box;
    std::size_t key = 0;
  };

  SpatialIndex();
  // Much quicker than inserting one after the other, and searched a little quicker. Empty boxes are left out;
  // boxes that are not bounded are found by every search that they overlap.
  explicit SpatialIndex(std::span<const Entry> entries);
  ~SpatialIndex();
  SpatialIndex(SpatialIndex&&) noexcept;
  SpatialIndex& operator=(SpatialIndex&&) noexcept;

  void insert(const Entry& entry);
  // The box must be the one that the key was inserted with. False when there is no such entry.
  bool remove(const Entry& entry);
  std::size_t size() const;

  // Calls visit with the key of each box that overlaps the given one, borders included, in no particular
  // order.
  void visit(const ge::Box2d& box, const std::function<void(std::size_t)>& visitor) const;
  std::vector<std::size_t> overlapping(const ge::Box2d& box) const;

 private:
  struct Tree;
  std::unique_ptr<Tree> m_tree;
  std::vector<Entry> m_unbounded;
};
