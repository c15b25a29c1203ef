// How often this program has asked for memory: its operator new is replaced by one that counts.
#pragma once

#include <cstddef>

std::size_t AllocationCount();
