// The bounds of a parameter file. They hold in both directions: what could not be read back is not written.
#pragma once

#include <cstddef>

namespace idp {

// Nodes on the way from the root to the deepest one, both counted. The deepest catalogue has eight.
constexpr int kDepthLimit = 1024;

// Bytes of JSON text: some two million rows of a pipe table.
constexpr std::size_t kTextLimit = 256u * 1024 * 1024;

} // namespace idp
