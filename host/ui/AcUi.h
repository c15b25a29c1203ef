// The control library as plug-ins see it while they are loaded.
#pragma once

// Makes the host's controls usable for a module that was just mapped. It may be called any number of times.
// The controls are plain values here, so nothing has to be made ready; plug-ins call it all the same, so that
// they need not know what kind of host they run in.
void InitAcUiDLL();
