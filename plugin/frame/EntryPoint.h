// What the host finds by name in the plug-in.
#pragma once

#include "plugin/base/ZpExport.h"

// Takes the host's messages: 1 registers the commands, 2 takes them away, all others do nothing. Always 0,
// which the host takes as success. packet is handed back to the host's dynamic linker.
extern "C" ZP_EXPORT int acrxEntryPoint(int message, void* packet);
// The interface generation that the plug-in is built for.
extern "C" ZP_EXPORT int acrxGetApiVersion();
