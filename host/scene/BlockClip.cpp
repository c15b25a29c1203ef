#include "host/scene/BlockClip.h"

#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbEntity.h"
#include "host/scene/SceneBuilder.h"

#include <array>

namespace scene {
namespace {

const AcDbObject* filterOf(const AcDbEntity& insertion) {
  const auto* dictionary = AcDbDictionary::cast(insertion.extensionDictionary().object());
  AcDbObjectId id;
  if (!dictionary || dictionary->getAt(L"ACAD_FILTER", id) != Acad::eOk) return nullptr;
  const auto* filters = AcDbDictionary::cast(id.object());
  if (!filters || filters->getAt(L"SPATIAL", id) != Acad::eOk) return nullptr;
  return id.object() && !id.isErased() ? id.object() : nullptr;
}

// Twelve numbers of group 40, row by row, the last row being understood.
AcGeMatrix3d matrixOf(std::span<const double> numbers) {
  AcGeMatrix3d matrix;
  for (std::size_t i = 0; i < 12; ++i) matrix.entry[i / 4][i % 4] = numbers[i];
  return matrix;
}

} // namespace

void ClipToBlock(Pen& pen, const AcGeMatrix3d& blockTransform) {
  constexpr std::size_t kMatrices = 24;
  if (!HasExtensionDictionary(pen.entity().record())) return;
  if (pen.builder().options().whileReading) return pen.builder().wait();
  const AcDbObject* filter = filterOf(pen.entity());
  if (!filter) return;
  std::vector<AcGePoint3d> corners;
  std::vector<double> numbers;
  bool isOn = true;
  const auto all = filter->record().tags();
  for (const DxfTag& tag : dxfOwnTags(all)) {
    if (tag.code == 71) isOn = IntegerOf(tag, 1) != 0;
    if (tag.code == 40) numbers.push_back(RealOf(tag));
    if (tag.code == 10) corners.emplace_back();
    if (!corners.empty() && tag.code < 30) ReadCoordinate(tag, 10, corners.back());
  }
  if (!isOn || corners.size() < 2 || numbers.size() < kMatrices) return;
  // Distances of front and back planes stand ahead of the matrices.
  const auto matrices = std::span(numbers).last(kMatrices);
  const AcGeMatrix3d worldToBlockThen = matrixOf(matrices.first(12));
  AcGeMatrix3d clipToWorldThen;
  if (!matrixOf(matrices.last(12)).inverse(clipToWorldThen)) return;
  if (corners.size() == 2) {
    const AcGePoint3d a = corners[0];
    const AcGePoint3d b = corners[1];
    corners = {a, AcGePoint3d(b.x, a.y, 0), b, AcGePoint3d(a.x, b.y, 0)};
  }
  PathPen path = pen.path(blockTransform * worldToBlockThen * clipToWorldThen);
  for (const AcGePoint3d& corner : corners) path.isEmpty() ? path.move(corner) : path.line(corner);
  path.close();
  pen.clip(path);
}

} // namespace scene
