#include "host/commands/LayerNames.h"

#include "host/db/AcDbLayerTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"
#include "host/ed/WildcardMatch.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

constexpr wchar_t kExistingLayer[] = L"图形中已有的图层名；用 LAYER 的 ? 选项列出";

} // namespace

CString CurrentLayerName() {
  AcDbObjectPointer<AcDbLayerTableRecord> layer(curDoc()->database()->clayer(), AcDb::kForRead);
  return layer ? layer->name() : CString(L"0");
}

AcDbObjectId LayerByName(const CString& name) {
  AcDbObjectPointer<AcDbLayerTable> layers(curDoc()->database()->layerTableId(), AcDb::kForRead);
  AcDbObjectId id;
  if (layers) layers->getAt(name, id);
  return id;
}

std::vector<AcDbObjectId> LayersByPattern(const CString& patterns) {
  std::vector<AcDbObjectId> fitting;
  AcDbObjectPointer<AcDbLayerTable> layers(curDoc()->database()->layerTableId(), AcDb::kForRead);
  if (!layers) return fitting;
  for (const auto& id : layers->records()) {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForRead);
    if (layer && ed::MatchesPattern(layer->name().View(), patterns.View(), true)) fitting.push_back(id);
  }
  return fitting;
}

bool MakeLayerCurrent(const CString& name) {
  auto& session = EdSession::instance();
  const auto id = LayerByName(name);
  AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForRead);
  if (!layer) {
    session.refuse(L"没有图层“" + ed::Excerpt(name) + L"”。", kExistingLayer);
    return false;
  }
  if (layer->isFrozen()) {
    session.refuse(L"图层“" + name + L"”已冻结，不能置为当前。", L"没有冻结的图层");
    return false;
  }
  const CString own = layer->name();
  layer.close();
  if (curDoc()->database()->setClayer(id) != Acad::eOk) {
    session.refuse(L"图层“" + own + L"”不能置为当前。", kExistingLayer);
    return false;
  }
  acutPrintf(L"\n当前图层：%s\n", own);
  return true;
}

} // namespace commands
