// A small picture of a drawing. The drawing belongs to whoever shows it, and must stay until another is set.
#pragma once

#include "host/ui/CWnd.h"

class AcDbDatabase;

class CDrawingPreview : public CWnd {
 public:
  CDrawingPreview(CFormWnd& form, CString caption) : CWnd(form, std::move(caption)) {}
  UiKind Kind() const override { return UiKind::preview; }

  AcDbDatabase* GetDrawing() const { return m_drawing; }
  // Null for none. Tells a change also for the same drawing, which may have other entities now.
  void SetDrawing(AcDbDatabase* drawing) {
    m_drawing = drawing;
    Notify(UiChange::Kind::content);
  }

 private:
  AcDbDatabase* m_drawing = nullptr;
};
