// The picture of a fan-coil unit's block.
#pragma once

#include <memory>

#include "host/db/AcDbDatabase.h"
#include "host/ui/CDrawingPreview.h"

namespace fancoil {

class BlockPreview : public CDrawingPreview {
 public:
  using CDrawingPreview::CDrawingPreview;

  // Reads the block's drawing; where that fails, a drawing that says so stands for it. Disabled where the
  // current document can't be locked, or there is none.
  void ShowBlock(const CString& block);
  // A drawing that belongs to the caller, and must stay until another is shown.
  void ShowDrawing(AcDbDatabase& drawing);
  void ShowNothing();

 private:
  std::unique_ptr<AcDbDatabase> m_read;
};

} // namespace fancoil
