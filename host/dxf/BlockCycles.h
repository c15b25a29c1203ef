// Which insertions of a drawing make blocks contain themselves.
#pragma once

#include <vector>

class AcDbBlockReference;

namespace dxf {

// Those insertions, of the ones given, through which a block contains itself, directly or by way of others.
// Takes time in proportion to their number, whatever they form.
std::vector<const AcDbBlockReference*>
insertionsInCycles(const std::vector<const AcDbBlockReference*>& insertions);

} // namespace dxf
