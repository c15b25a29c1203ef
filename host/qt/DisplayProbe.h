// Whether a window can be shown here. Qt ends the whole program where it finds no screen, so a child process
// tries first.
#pragma once

namespace desktop {

bool HasDisplay();

} // namespace desktop
