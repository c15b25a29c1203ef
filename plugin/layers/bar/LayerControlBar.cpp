#include "plugin/layers/bar/LayerControlBar.h"

#include <memory>

#include "host/ed/acedWindows.h"
#include "host/ui/CFrameWnd.h"
#include "plugin/layers/bar/CCADLayerControlBar.h"

namespace {
std::unique_ptr<CCADLayerControlBar> s_bar; // goes with the module at the latest
} // namespace

void layers::ShowControlBar() {
  auto* frame = static_cast<CFrameWnd*>(acedGetAcadFrame());
  if (!s_bar) {
    s_bar = std::make_unique<CCADLayerControlBar>();
    if (!s_bar->Create(frame, L"当前CAD图纸图层管理")) return;
    s_bar->FirstShow();
  }
  if (frame) frame->ShowControlBar(s_bar.get(), true, true);
  s_bar->Refresh();
  if (frame) frame->SetActiveWindow();
}

void layers::DestroyControlBar() {
  if (!s_bar) return;
  s_bar->DestroyWindow();
  s_bar.reset();
}
