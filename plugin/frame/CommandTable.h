// The plug-in's commands, in their order.
#pragma once

#include <span>

#include "plugin/frame/VkDefineCommand.h"

std::span<const VkCmdTable> CommandTable();
