// The pairs of pieces whose boxes overlap. Small curves compare all pairs, long polylines sweep along x.
#pragma once

#include "host/ge/CurvePiece.h"

#include <functional>
#include <span>
#include <vector>

namespace ge {

struct PieceBox {
  std::size_t index = 0;
  Box2d box;
};

// Calls visit(index of a, index of b) once for each pair, in no particular order. Boxes are to be grown by
// the tolerance beforehand; those of extended pieces are unbounded. Sorts both lists.
void ForEachClosePair(std::vector<PieceBox>& a, std::vector<PieceBox>& b,
                      const std::function<void(std::size_t, std::size_t)>& visit);

} // namespace ge
