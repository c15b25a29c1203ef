#include "plugin/layers/bar/LayerRows.h"

#include <unordered_set>

#include "host/ed/acedColors.h"
#include "host/ed/acedWindows.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/LayerTable.h"
#include "plugin/layers/Regenerate.h"
#include "plugin/layers/bar/LayerIcons.h"

namespace {

constexpr layers::StateColumn kStateColumns[] = {
    {layers::kOffColumn, &LayerState::Off, layers::kOnIcon, layers::kOffIcon},
    {layers::kFrozenColumn, &LayerState::Frozen, layers::kThawedIcon, layers::kFrozenIcon},
    {layers::kLockedColumn, &LayerState::Locked, layers::kUnlockedIcon, layers::kLockedIcon},
};

struct LayerCommand {
  const wchar_t* label;
  enum class Scope { shown, others } scope;
  int column;
  bool set;
};
// The id of a command in the menu is its place here.
constexpr LayerCommand kCommands[] = {
    {L"全部关闭", LayerCommand::Scope::shown, layers::kOffColumn, true},
    {L"全部打开", LayerCommand::Scope::shown, layers::kOffColumn, false},
    {L"全部冻结", LayerCommand::Scope::shown, layers::kFrozenColumn, true},
    {L"全部解冻", LayerCommand::Scope::shown, layers::kFrozenColumn, false},
    {L"全部锁定", LayerCommand::Scope::shown, layers::kLockedColumn, true},
    {L"全部解锁", LayerCommand::Scope::shown, layers::kLockedColumn, false},
    {L"打开其他图层", LayerCommand::Scope::others, layers::kOffColumn, false},
    {L"关闭其他图层", LayerCommand::Scope::others, layers::kOffColumn, true},
};

// The current layer is spared from freezing alone; switching off treats it like any other.
void SwitchShown(CGridCtrl& grid, const layers::StateColumn& column, bool set) {
  const bool freezes = column.column == layers::kFrozenColumn && set;
  const CString current = ZP::GetCurrentLayer();
  {
    const UiQuietly quietly(grid);
    for (int row = 0; row < grid.GetRowCount(); ++row) {
      const CString name = grid.GetItemText(row, layers::kNameColumn);
      if (freezes && name == current) continue;
      LayerState state = layers::ReadLayerState(name);
      state.*column.value = set;
      layers::WriteLayerState(state);
      layers::ShowSwitch(grid, row, column, set);
      layers::FocusFrame();
    }
  }
  if (column.column == layers::kFrozenColumn && !set) layers::Regenerate();
}

void SwitchOthers(const CGridCtrl& grid, bool off) {
  std::unordered_set<CString> shown; // asked for once per layer of the drawing
  for (int row = 0; row < grid.GetRowCount(); ++row) shown.insert(grid.GetItemText(row, layers::kNameColumn));
  const DocumentWriteLock lock;
  if (!lock.IsHeld()) return;
  CStringArray names;
  ZP::GetCurDwgAllLayer(names);
  for (const CString& name : names) {
    if (shown.contains(name)) continue;
    const layers::OpenTable table = layers::OpenLayerTable(AcDb::kForWrite);
    if (!table) continue;
    const layers::OpenRecord layer = layers::OpenLayer(*table.object(), name, AcDb::kForWrite);
    if (layer) layer->setIsOff(off);
  }
  layers::FocusFrame();
}

} // namespace

const layers::StateColumn* layers::FindStateColumn(int column) {
  for (const StateColumn& known : kStateColumns)
    if (known.column == column) return &known;
  return nullptr;
}

void layers::ShowState(CGridCtrl& grid, int row, const LayerState& state) {
  for (const StateColumn& column : kStateColumns) ShowSwitch(grid, row, column, state.*column.value != 0);
  const auto index = static_cast<std::uint16_t>(state.ColorIndex);
  grid.SetCellColours(row, layers::kColourColumn, acedGetRGB(index));
}

void layers::ShowSwitch(CGridCtrl& grid, int row, const StateColumn& column, bool set) {
  grid.SetCellImage(row, column.column, set ? column.setIcon : column.plainIcon);
}

std::vector<UiMenuItem> layers::LayerMenu() {
  std::vector<UiMenuItem> items;
  for (const LayerCommand& command : kCommands)
    items.push_back({static_cast<int>(items.size()), command.label});
  return items;
}

void layers::RunLayerCommand(CGridCtrl& grid, int id) {
  const LayerCommand& command = kCommands[id];
  const DocumentWriteLock step(command.label); // what it does is taken back at once
  if (command.scope == LayerCommand::Scope::shown)
    SwitchShown(grid, *FindStateColumn(command.column), command.set);
  else
    SwitchOthers(grid, command.set);
}

void layers::FocusFrame() {
  if (CWnd* frame = acedGetAcadFrame()) frame->SetFocus();
}
