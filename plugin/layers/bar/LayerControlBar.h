// The one layer control bar of the process.
#pragma once

namespace layers {

// Makes it the first time, docked at the left; shows it and fills it anew. The keyboard goes to the frame.
void ShowControlBar();
// Takes it away, if it is there: its list of groups may be out of date.
void DestroyControlBar();

} // namespace layers
