// Makes an SVG the same whatever was painted before it in the process.
#pragma once

#include <string>

namespace plot {

// Cairo numbers its surfaces over the life of the process and writes the numbers as ids; here they count from
// 1 in the order in which the file has them.
std::string StableSvg(const std::string& svg);

} // namespace plot
