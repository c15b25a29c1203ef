// The layers of the working drawing, as the modules of the package use them: the layer commands, the way from
// an identifier of the scheme to a layer of the drawing and back, and clearing what keeps entities from being
// edited. Nothing is told to the user but the prompts and the warnings of CheckLayerCanEdit; what the host
// refuses stays as it was.
#pragma once

#include "host/afx/CString.h"
#include "host/afx/CStringArray.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"
#include "plugin/graph/AcArray.h"

class AcDbLayerTableRecord;
class AcDbPolyline;

namespace ZP {

// --- commands
// ----------------------------------------------------------------------------------------------- Each asks
// for entities; a cancelled selection ends it. The current layer gets no treatment of its own.
ZP_EXPORT void SetCurrentLayer(); // the picked entity's layer becomes current
ZP_EXPORT void CloseSelectedLayer();
ZP_EXPORT void CloseOtherLayers();
ZP_EXPORT void FrozenSelectedLayer();
ZP_EXPORT void FrozenOtherLayers();
ZP_EXPORT void LockedSelectedLayer();
ZP_EXPORT void LockedOtherLayers();
// Without a question, all layers: on, thawed (in new viewports too) and unlocked, whatever they were before.
ZP_EXPORT void ResumeLayers();
ZP_EXPORT void OpenAllLayers();
ZP_EXPORT void UnFrozenAllLayers();
ZP_EXPORT void UnLockedAllLayers();

// --- current layer, layers of selected entities
// ---------------------------------------------------------------
ZP_EXPORT CString GetCurrentLayer();
ZP_EXPORT void SetCurrentLayer(const CString& layer); // nothing for an unknown name
// The layer of one picked entity; false, with layer as it was, without a pick.
ZP_EXPORT bool GetSelectedEntityLayer(CString& layer);
// Appends the layer of each selected entity, repeats included. False when layers is empty at the end.
ZP_EXPORT bool GetSelectedEntityLayer(CStringArray& layers);
// The names of all layers in table order; layers is emptied first. False when the document can't be locked.
ZP_EXPORT bool GetCurDwgAllLayer(CStringArray& layers);

// --- editing on layers that the user has switched off
// ----------------------------------------------------------- Unlocks, thaws and switches on the named layers
// and remembers what it changed, in one list for the process. Names that the drawing lacks are passed over.
// With warn each change is told. False only when the layer table can't be opened. RestoreLayersStatus brings
// the states of all calls since the last restore back, in whatever drawing is then the working one.
ZP_EXPORT bool CheckLayerCanEdit(const CStringArray& layers, bool warn);
ZP_EXPORT bool CheckLayerCanEdit(const CString& layer, bool warn);
ZP_EXPORT bool RestoreLayersStatus();

// --- identifiers
// ------------------------------------------------------------------------------------------------ Gives the
// record name, colour, linetype and line weight of the definition and marks it with the identifier. The
// record is open; it ends open for write, and the caller closes it. False, with the record as it was, for
// null and for an identifier that the scheme doesn't know.
ZP_EXPORT bool SetUserLayerTableRecord(AcDbLayerTableRecord* record, const CString& korLayer);
// The name of the drawing's layer for the identifier. The layer is made if need be and gets the definition's
// look each time. An identifier that the scheme doesn't know is returned as it is, and the drawing not
// touched. Where the definition's name is none that a layer can have, no layer is made.
ZP_EXPORT CString GetUserLayer(const CString& korLayer);
// The layer name by the scheme alone; "" for an unknown identifier.
ZP_EXPORT CString GetMngUserLayer(const CString& korLayer);
// The identifier that the drawing's layer is marked with. False, with korLayer as it was, when the drawing
// lacks the layer or the layer has no mark.
ZP_EXPORT bool GetKOrLayer(const CString& layer, CString& korLayer);
// True whenever both layers are marked: the identifiers are deliberately not compared.
ZP_EXPORT bool IsSameKOrLayer(const CString& layerA, const CString& layerB);

// --- widths
// ----------------------------------------------------------------------------------------------------- Gives
// the polyline (open for write) the line weight of its layer's definition as width, in millimetres, times the
// output scale when useOutScale. 1, or 0 when the layer is not marked or its definition is gone. A weight
// that is one of the negative special values gives a negative width.
ZP_EXPORT int SetPolyLineWidth(AcDbPolyline* polyline, bool useOutScale);
ZP_EXPORT int SetPolyLineWidth(AcDbObjectId id, bool useOutScale);
// All of them, going on after a failure; 1 only if every one succeeded, and for no ids at all.
ZP_EXPORT int SetPolyLineWidth(const AcArray<AcDbObjectId>& ids, bool useOutScale);

} // namespace ZP
