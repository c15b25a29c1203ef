#include "plugin/tools/RiserBlock.h"

#include <memory>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbPoint.h"
#include "host/ed/ArxDbgUtils.h"
#include "plugin/graph/TableRecords.h"

namespace ZP {

namespace {

constexpr const wchar_t* kSingleCircle = L"KOR_PMT_KXG_1.2";
constexpr int kRings = 5;

void Fill(AcDbBlockTableRecord& record, bool rings) {
  for (int i = rings ? kRings : 1; i > 0; --i) {
    const double radius = rings ? static_cast<double>(i) / kRings : 1.0;
    AddToTabRecAndClose(&record, new AcDbCircle(AcGePoint3d(), AcGeVector3d::kZAxis, radius));
  }
  AddToTabRecAndClose(&record, new AcDbPoint(AcGePoint3d()));
}

} // namespace

AcDbObjectId GetRiserBlockID(CString name) {
  AcDbObjectId id;
  const auto* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return id;
  AcDbObjectPointer<AcDbBlockTable> blocks(drawing->blockTableId(), AcDb::kForWrite);
  if (!blocks || blocks->getAt(name, id) == Acad::eOk) return id;
  auto record = std::make_unique<AcDbBlockTableRecord>();
  record->setPathName(L"");
  auto status = record->setName(name);
  if (status == Acad::eOk) status = blocks->add(id, record.get());
  if (status != Acad::eOk) {
    ArxDbgUtils::rxErrorMsg(status);
    return {};
  }
  auto* made = record.release(); // the drawing's
  Fill(*made, name.CompareNoCase(kSingleCircle) != 0);
  made->close();
  return id;
}

} // namespace ZP
