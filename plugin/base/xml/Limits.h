// The bounds of a dictionary file. They hold in both directions: what could not be read back is not written.
#pragma once

#include <cstddef>

namespace xml {

// Elements on the way from the root to the deepest item, both counted. The files of the installation have
// three.
constexpr int kDepthLimit = 256;

// Bytes of XML text, and elements in it: they bound the memory that a file can ask for to about a gigabyte.
// A hundred thousand fittings are 20 MiB and 800,000 elements.
constexpr std::size_t kTextLimit = 64u * 1024 * 1024;
constexpr std::size_t kElementLimit = 2'000'000;

} // namespace xml
