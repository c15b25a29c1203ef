// WB_GXBZ: writes the label of a picked pipe beside it: along a main, to the right of a riser.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbCurve.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbTextStyleTable.h"
#include "host/ed/acutPrintf.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/LabelPlace.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/PickPipe.h"
#include "plugins/workbench/PipeLabelText.h"

#include <cmath>

namespace workbench {
namespace {

constexpr double kGapOnPaper = 1; // mm between the pipe and its label

// The layer of labels, by what a pipe's own layer identifier begins with; the last row takes all others.
struct LabelLayer {
  const wchar_t* pipe;
  const wchar_t* label;
};
constexpr LabelLayer kLabelLayers[] = {{L"采暖", L"采暖标注"}, {L"", L"水管标注"}};

// Where the scheme has no layer for labels, the pipe's own.
CString LabelLayerOf(const AcDbObjectId& pipe) {
  CString identifier;
  CZPMainPipe(pipe).GetLayerId(identifier);
  for (const auto& row : kLabelLayers)
    if (identifier.Find(row.pipe) == 0 && CZPManagerLayer::GetInstance()->IsExist(row.label))
      return row.label;
  return identifier;
}

AcDbObjectId TextStyle() {
  const auto* database = acdbHostApplicationServices()->workingDatabase();
  const AcDbObjectPointer<AcDbTextStyleTable> styles(database->textStyleTableId(), AcDb::kForRead);
  AcDbObjectId id;
  if (styles) styles->getAt(ZP::GetTextStyle(), id);
  return id;
}

double OnDrawing(double millimetresOnPaper) {
  return millimetresOnPaper * ZP::GetOutDwgScale();
}

// The width of the text as the host draws it.
double WidthOf(const AcDbText& text) {
  AcDbExtents box;
  if (text.getGeomExtents(box) != Acad::eOk) return 0;
  return box.maxPoint().x - box.minPoint().x;
}

// Nothing for Escape.
std::optional<LabelPlace> AskPlaceOnMain(const AcDbObjectId& pipe, double height) {
  const auto at = ed::AskPoint({L"指定标注位置 <中点>:", {}, 0, {}});
  if (at.isCancelled()) return std::nullopt;
  const AcDbObjectPointer<AcDbCurve> curve(pipe, AcDb::kForRead);
  const auto wished = at.isNone() ? std::nullopt : std::optional(at.point);
  return PlaceAlong(*curve.object(), wished, OnDrawing(kGapOnPaper), height);
}

LabelPlace PlaceBesideRiser(const AcDbObjectId& pipe) {
  const AcDbObjectPointer<AcDbBlockReference> riser(pipe, AcDb::kForRead);
  const double distance = riser->scaleFactors().x + OnDrawing(kGapOnPaper);
  return {riser->position() + AcGeVector3d(distance, distance, 0), 0, false};
}

// False for Escape.
bool Label(const PickedPipe& pipe) {
  const bool isDrawn = pipe.kind == PipeKind::main ? AcDbCurve::cast(pipe.id.object()) != nullptr
                                                   : AcDbBlockReference::cast(pipe.id.object()) != nullptr;
  if (!isDrawn) {
    Refuse(L"干管不是曲线，或立管不是图块，不能标注。", L"另一条管线");
    return true;
  }
  const CString text = LabelTextOf(pipe);
  const double height = OnDrawing(ZP::GetXwZg());
  const auto place =
      pipe.kind == PipeKind::main ? AskPlaceOnMain(pipe.id, height) : PlaceBesideRiser(pipe.id);
  if (!place) return false;
  const CString layer = LabelLayerOf(pipe.id);
  if (layer.IsEmpty() || !PrepareLayer(layer)) return true;
  auto label = std::make_unique<AcDbText>(AcGePoint3d(), text, TextStyle(), height);
  const auto along = AcGeVector3d(std::cos(place->rotation), std::sin(place->rotation), 0);
  label->setPosition(place->isCentred ? place->point - along * (WidthOf(*label) / 2) : place->point);
  label->setRotation(place->rotation);
  if (!AppendOnLayer(std::move(label), layer).isNull()) acutPrintf(L"\n标注：%s\n", text);
  return true;
}

} // namespace

void LabelPipe() {
  while (const auto pipe = PickPipe(L"选择要标注的管线 <完成>:", PickFor::looking))
    if (!Label(*pipe)) return;
}

} // namespace workbench
