// Marks what the plug-in offers to sibling plug-ins; everything without the mark is hidden.
#pragma once

#define ZP_EXPORT __attribute__((visibility("default")))
