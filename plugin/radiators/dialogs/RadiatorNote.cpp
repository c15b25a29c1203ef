#include "plugin/radiators/dialogs/RadiatorNote.h"

#include <memory>

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbText.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/graph/DragEntities.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/graph/Screen.h"
#include "plugin/graph/TextAttribute.h"
#include "plugin/layers/LayerService.h"

namespace {

constexpr const wchar_t* kNoteLayer = L"公用标注";

std::unique_ptr<AcDbText> MakeNote(const CString& text) {
  const double height = ZP::GetZwZg() * ZP::GetOutDwgScale();
  auto note = std::make_unique<AcDbText>(AcGePoint3d::kOrigin, text, AcDbObjectId(), height);
  ZP::SetTextAttribute(note.get(), ZP::kAnnotation);
  note->setDatabaseDefaults(acdbHostApplicationServices()->workingDatabase());
  // Where the drawing can't have the layer, the current one of the defaults stays.
  note->setLayer(ZP::GetUserLayer(kNoteLayer));
  return note;
}

} // namespace

void radiators::PlaceNote(const CString& text) {
  auto note = MakeNote(text);
  if (const auto status = ArxDbgUtils::addToCurrentSpace(note.get()); status != Acad::eOk)
    return ArxDbgUtils::rxErrorMsg(status);
  AcDbText* added = note.release(); // the drawing's
  const CString layer = added->layer();
  AcArray<AcDbObjectId> ids;
  ids.append(added->objectId());
  added->close();
  constexpr bool warn = true;
  constexpr bool generated = true;
  ZP::CheckLayerCanEdit(layer, warn);
  ZP::DragGenEntity(ids, AcGePoint3d::kOrigin, generated);
  ZP::RestoreLayersStatus();
  ZP::FlushGraphics();
}
