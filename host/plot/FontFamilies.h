// Which font families stand for the fonts that a drawing names.
#pragma once

#include "host/scene/text/Font.h"

#include <string>

namespace plot {

// Family names parted by commas, the best first, for the system's font service to choose from.
std::string FamiliesOf(const scene::Font& font);

} // namespace plot
