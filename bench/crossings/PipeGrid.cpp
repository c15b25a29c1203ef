#include "bench/crossings/PipeGrid.h"

#include "plugin/pipes/attributes/CZPMainPipe.h"

#include <cmath>

namespace {

constexpr double kCell = 1000;
constexpr double kBranch = 700;

AcDbObjectId AppendPipe(WorkingDrawing& drawing, const AcGePoint3d& from, const AcGePoint3d& to,
                        double elevation) {
  const AcDbObjectId id = drawing.Append(new AcDbLine(from, to));
  CZPMainPipe(id).SetElevation(elevation);
  return id;
}

} // namespace

AcDbObjectIdArray DrawPipeGrid(WorkingDrawing& drawing, int count) {
  AcDbObjectIdArray ids;
  const int cells = count / 2;
  const int columns = static_cast<int>(std::ceil(std::sqrt(cells)));
  for (int cell = 0; cell < cells; ++cell) {
    const int row = cell / columns;
    const AcGePoint3d from(kCell * (cell % columns), kCell * row, 0);
    const AcGePoint3d foot = from + AcGeVector3d(kCell / 2, 0, 0);
    const double main = cell % 2 == 0 ? 3.0 : 2.5;
    ids.append(AppendPipe(drawing, from, from + AcGeVector3d(kCell, 0, 0), main));
    ids.append(AppendPipe(drawing, foot, foot + AcGeVector3d(0, kBranch, 0), row % 2 == 0 ? 3.5 : 2.0));
  }
  return ids;
}
