#include "plugins/workbench/FanCoilSymbol.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbPolyline.h"
#include "plugin/base/Folders.h"
#include "plugin/fancoil/SKTFCUEquipmentData.h"

namespace workbench {

AcDbObjectId FanCoilBlock(const SKTFCUEquipmentData& unit) {
  auto* drawing = acdbHostApplicationServices()->workingDatabase();
  AcDbObjectId block;
  if (!drawing || unit.szDwgPath.IsEmpty()) return block;
  {
    const AcDbObjectPointer<AcDbBlockTable> blocks(drawing->blockTableId(), AcDb::kForRead);
    if (!blocks || blocks->getAt(unit.szDwgPath, block) == Acad::eOk) return block;
  }
  AcDbDatabase file(false);
  if (file.readDwgFile(ZP::GetFCUDwgFilesPath() + unit.szDwgPath + L".Dwg") != Acad::eOk) return {};
  return drawing->insert(block, unit.szDwgPath, &file) == Acad::eOk ? block : AcDbObjectId();
}

std::unique_ptr<AcDbEntity> FanCoilSymbol(const SKTFCUEquipmentData& unit, const AcDbObjectId& block,
                                          const AcGePoint3d& at, double angle) {
  if (!block.isNull()) {
    auto insertion = std::make_unique<AcDbBlockReference>(at, block);
    insertion->setRotation(angle);
    return insertion;
  }
  auto outline = std::make_unique<AcDbPolyline>();
  const double x = unit.dbLength / 2;
  const double y = unit.dbWidth / 2;
  unsigned index = 0;
  for (const AcGePoint2d& corner :
       {AcGePoint2d(-x, -y), AcGePoint2d(x, -y), AcGePoint2d(x, y), AcGePoint2d(-x, y)})
    outline->addVertexAt(index++, corner);
  outline->setClosed(true);
  outline->transformBy(AcGeMatrix3d::translation(at.asVector()) *
                       AcGeMatrix3d::rotation(angle, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin));
  return outline;
}

} // namespace workbench
