// A made-up pipe plan of any size, as the text of a drawing file.
#pragma once

#include <string>

// For each pipe a line and a polyline with extended data; for every second one an arc and a text, or the
// insertion of a valve, half of these with an attribute. The same number gives the same plan.
std::string PipePlan(int pipes);
