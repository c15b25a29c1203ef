#include "plugin/layers/bar/CCADLayerControlBar.h"

#include "host/ed/AcApDocManager.h"
#include "plugin/layers/LayerService.h"
#include "plugin/layers/Regenerate.h"
#include "plugin/layers/bar/CCADLayerDatabaseReactor.h"
#include "plugin/layers/bar/LayerIcons.h"
#include "plugin/layers/bar/LayerRows.h"
#include "plugin/layers/groups/CCADGroupLayer.h"
#include "plugin/layers/groups/CCADManagerLayer.h"

namespace {

struct GridColumn {
  const wchar_t* title;
  int width;
};
// In the order of layers::LayerColumn.
constexpr GridColumn kColumns[] = {
    {L"图层", 150}, {L"开关", 28}, {L"冻结", 28}, {L"锁定", 28}, {L"颜色", 28}};

} // namespace

CCADLayerControlBar::CCADLayerControlBar() {
  SetToolID(L"{0C9C3FC0-7192-4B0D-BE17-7AB24AAFCFF0}");
  m_sources.ShowCaption(false);
  m_sources.SetFont({L"宋体", 12});
  m_sources.SelectionChanged.Connect([this] { Fill(); });
  m_grid.ShowCaption(false);
  m_grid.SetEditable(false);
  m_grid.ShowGridLines(false);
  m_grid.ShowColumnTitles(false);
  for (const GridColumn& column : kColumns) {
    const int index = m_grid.AddColumn(column.title, column.width);
    m_grid.SetColumnPressed(index, true);
    m_grid.SetColumnKeepsWidth(index, index != layers::kNameColumn);
  }
  m_grid.SetImages(layers::LayerIcons());
  m_grid.SetImageNames(layers::LayerIconNames());
  m_grid.CellPressed.Connect([this](int row, int column) { Click(row, column); });
  m_grid.Menu.SetProvider(layers::LayerMenu);
  m_grid.Menu.Chosen.Connect([this](int id) { layers::RunLayerCommand(m_grid, id); });
}

UiLayout CCADLayerControlBar::Layout() {
  return ui::Column({ui::Item(m_sources), ui::Item(m_grid).Stretch(1).Size(200, 300)});
}

void CCADLayerControlBar::OnCreate() {
  AcApDocument* document = acDocManagerPtr()->curDocument();
  if (!document) return;
  for (const CCADLayerDatabaseReactor* reactor : m_arrReactors)
    if (reactor->Document() == document) return;
  m_arrReactors.Add(layers::WatchLayers(document));
}

void CCADLayerControlBar::FirstShow() {
  EnableDocking(kDockLeft | kDockRight);
  DockTo(kDockLeft);
}

void CCADLayerControlBar::Refresh() {
  {
    const UiQuietly quietly(m_sources);
    CCADManagerLayer* manager = CCADManagerLayer::GetInstance();
    m_sources.ResetContent();
    m_sources.AddString(L"全部图层", static_cast<CZPObject*>(manager));
    for (CCADGroupLayer* group : manager->Groups())
      m_sources.AddString(group->GetName(), static_cast<CZPObject*>(group));
    m_sources.SetCurSel(0);
  }
  Fill();
}

void CCADLayerControlBar::Fill() {
  const UiQuietly quietly(m_grid);
  m_grid.DeleteAllRows();
  if (m_sources.GetCurSel() < 0) return;
  const auto* source = static_cast<const CZPObject*>(m_sources.GetItemData(m_sources.GetCurSel()));
  CStringArray names;
  if (!source->IsKindOf(RUNTIME_CLASS(CCADManagerLayer)))
    names = static_cast<const CCADGroupLayer*>(source)->Layers;
  else if (!ZP::GetCurDwgAllLayer(names))
    return;
  for (const CString& name : names)
    layers::ShowState(m_grid, m_grid.AddRow({name}), layers::ReadLayerState(name));
}

void CCADLayerControlBar::Click(int row, int column) {
  m_grid.SetCurSel(-1); // a mark on the cell would hide what it shows
  const CString name = m_grid.GetItemText(row, layers::kNameColumn);
  LayerState state = layers::ReadLayerState(name);
  const bool isCurrent = name == ZP::GetCurrentLayer();
  const layers::StateColumn* clicked = layers::FindStateColumn(column);
  if (clicked) {
    int& value = state.*clicked->value;
    // The current layer can't be frozen: icon and layer stay.
    if (column != layers::kFrozenColumn || value || !isCurrent) {
      value = !value;
      layers::ShowSwitch(m_grid, row, *clicked, value != 0);
    }
  }
  layers::FocusFrame();
  if (!clicked) return;
  layers::WriteLayerState(state);
  if (column == layers::kFrozenColumn && !state.Frozen && !isCurrent) layers::Regenerate();
  layers::FocusFrame();
}
