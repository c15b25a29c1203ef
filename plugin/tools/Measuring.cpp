#include "plugin/tools/Measuring.h"

#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/tools/CZPMeasureJig.h"

namespace ZP {

double GetLengthFromDwg() {
  const DocumentWriteLock lock; // measuring goes on without it
  return CZPMeasureJig().MeasureLength();
}

double GetLengthFromDwg(AcGePoint3d& first, AcGePoint3d& last) {
  const DocumentWriteLock lock;
  return CZPMeasureJig().MeasureLength(first, last);
}

double GetAreaFromDwg() {
  const DocumentWriteLock lock;
  return CZPMeasureJig().MeasureArea();
}

} // namespace ZP
