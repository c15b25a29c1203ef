// Sweep along x: each box is compared with those of the other list that begin within it.
#include "host/ge/ClosePieces.h"

#include <algorithm>

namespace ge {

void ForEachClosePair(std::vector<PieceBox>& a, std::vector<PieceBox>& b,
                      const std::function<void(std::size_t, std::size_t)>& visit) {
  const auto byLeft = [](const PieceBox& p, const PieceBox& q) { return p.box.minX < q.box.minX; };
  std::sort(a.begin(), a.end(), byLeft);
  std::sort(b.begin(), b.end(), byLeft);
  const auto scan = [](const PieceBox& one, const std::vector<PieceBox>& others, std::size_t from,
                       auto report) {
    for (std::size_t k = from; k < others.size() && others[k].box.minX <= one.box.maxX; ++k) {
      if (others[k].box.minY <= one.box.maxY && others[k].box.maxY >= one.box.minY) report(others[k].index);
    }
  };
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size()) {
    if (a[i].box.minX <= b[j].box.minX) {
      scan(a[i], b, j, [&](std::size_t other) { visit(a[i].index, other); });
      ++i;
    } else {
      scan(b[j], a, i, [&](std::size_t other) { visit(other, b[j].index); });
      ++j;
    }
  }
}

} // namespace ge
