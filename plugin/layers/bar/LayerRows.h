// The rows of the layer control bar: what a layer's state looks like, and the commands on all of them.
#pragma once

#include "host/ui/CGridCtrl.h"
#include "plugin/layers/bar/LayerState.h"

namespace layers {

enum LayerColumn { kNameColumn, kOffColumn, kFrozenColumn, kLockedColumn, kColourColumn };

// A switch of a layer, the column that shows it, and its two icons.
struct StateColumn {
  int column;
  int LayerState::*value;
  int plainIcon;
  int setIcon;
};
// Null for a column that shows no switch.
const StateColumn* FindStateColumn(int column);

void ShowState(CGridCtrl& grid, int row, const LayerState& state);
// The icon of one switch.
void ShowSwitch(CGridCtrl& grid, int row, const StateColumn& column, bool set);

// The menu of the grid.
std::vector<UiMenuItem> LayerMenu();
// Does what a command of the menu says with the layers of all rows, or with all that the rows do not show.
void RunLayerCommand(CGridCtrl& grid, int id);

// Gives the host's frame the keyboard.
void FocusFrame();

} // namespace layers
