// All that a painter can see of the groups of a picture, a text each, to compare one picture with another.
#pragma once

#include "host/scene/LiveScene.h"

#include <string>
#include <vector>

std::vector<std::string> GroupTexts(const scene::Scene& picture);
// Of all its pages.
std::vector<std::string> GroupTexts(const scene::LiveScene& picture);
