// A drawing with pipes, and what crossing bends made of it.
#pragma once

#include <numbers>
#include <vector>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/Audit.h"
#include "plugin/graph/Xdata.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugin/tools/ZPKwCl.h"
#include "tests/support/EditorFixture.h"
#include "tests/support/TempInstall.h"

class CrossingsFixture : public EditorFixture {
 protected:
  CrossingsFixture() { CZPManagerLayer::GetInstance()->RemoveAll(); }

  static constexpr double kRadius = 50;

  static AcDbObjectId pipe(const AcGePoint3d& from, const AcGePoint3d& to, double elevation,
                           const wchar_t* layer = nullptr) {
    return withElevation(addLine(from, to, layer), elevation);
  }
  static AcDbObjectId withElevation(const AcDbObjectId& id, double elevation) {
    EXPECT_TRUE(CZPMainPipe(id).SetElevation(elevation));
    return id;
  }
  static AcDbObjectId polyline(const std::vector<AcGePoint2d>& points, double elevation,
                               bool closed = false) {
    auto* polyline = new AcDbPolyline;
    for (unsigned i = 0; i < points.size(); ++i) polyline->addVertexAt(i, points[i]);
    polyline->setClosed(closed);
    return withElevation(add(polyline), elevation);
  }
  static AcDbObjectIdArray array(std::initializer_list<AcDbObjectId> ids) {
    AcDbObjectIdArray all;
    for (const auto& id : ids) all.append(id);
    return all;
  }
  static void addKw(std::initializer_list<AcDbObjectId> ids, bool arcOuch = true) {
    ZPKwCl(arcOuch, kRadius).AddKw(array(ids));
  }

  // An insertion of a new block with the parts.
  AcDbObjectId insert(const wchar_t* name, std::initializer_list<AcDbEntity*> parts, const AcGePoint3d& at) {
    AcDbObjectId block;
    AcDbObjectPointer<AcDbBlockTable> blocks(database().blockTableId(), AcDb::kForWrite);
    auto* record = new AcDbBlockTableRecord;
    record->setName(name);
    EXPECT_EQ(Acad::eOk, blocks->add(block, record));
    for (auto* part : parts) {
      EXPECT_EQ(Acad::eOk, record->appendAcDbEntity(part));
      part->close();
    }
    record->close();
    return add(new AcDbBlockReference(at, block));
  }

  // What is in the current space, in its order.
  template <typename Entity> std::vector<AcDbObjectId> all() {
    std::vector<AcDbObjectId> found;
    const AcDbObjectPointer<AcDbBlockTableRecord> space(database().modelSpaceId(), AcDb::kForRead);
    for (const auto& id : space->entities())
      if (!id.isErased() && Entity::cast(id.object())) found.push_back(id);
    return found;
  }
  std::vector<AcDbObjectId> symbols() { return all<AcDbBlockReference>(); }
  AcDbObjectId onlySymbol() {
    const auto found = symbols();
    EXPECT_EQ(1u, found.size());
    return found.empty() ? AcDbObjectId() : found.front();
  }
  static AcGePoint3d positionOf(const AcDbObjectId& symbol) {
    const AcDbObjectPointer<AcDbBlockReference> reference(symbol, AcDb::kForRead);
    return reference ? reference->position() : AcGePoint3d();
  }
  static std::vector<AcDbObjectId> partsOf(const AcDbObjectId& symbol) {
    const AcDbObjectPointer<AcDbBlockReference> reference(symbol, AcDb::kForRead);
    if (!reference) return {};
    const AcDbObjectPointer<AcDbBlockTableRecord> block(reference->blockTableRecord(), AcDb::kForRead);
    return block->entities();
  }
  // From and to, in degrees.
  struct Angles {
    double from;
    double to;
  };
  static std::vector<Angles> arcsOf(const AcDbObjectId& symbol) {
    std::vector<Angles> arcs;
    for (const auto& id : partsOf(symbol)) {
      const AcDbObjectPointer<AcDbArc> arc(id, AcDb::kForRead);
      if (!arc) continue;
      EXPECT_NEAR(kRadius, arc->radius(), 1e-9);
      constexpr double degree = std::numbers::pi / 180;
      arcs.push_back({arc->startAngle() / degree, arc->endAngle() / degree});
    }
    return arcs;
  }
  static void expectArcs(const AcDbObjectId& symbol, const std::vector<Angles>& wanted) {
    const auto arcs = arcsOf(symbol);
    EXPECT_EQ(wanted.size(), partsOf(symbol).size());
    ASSERT_EQ(wanted.size(), arcs.size());
    for (std::size_t i = 0; i < arcs.size(); ++i) {
      EXPECT_NEAR(wanted[i].from, arcs[i].from, 1e-6) << "arc " << i;
      EXPECT_NEAR(wanted[i].to, arcs[i].to, 1e-6) << "arc " << i;
    }
  }
  static void expectOneCircle(const AcDbObjectId& symbol) {
    const auto parts = partsOf(symbol);
    ASSERT_EQ(1u, parts.size());
    const AcDbObjectPointer<AcDbCircle> circle(parts.front(), AcDb::kForRead);
    ASSERT_TRUE(circle);
    EXPECT_EQ(kRadius, circle->radius());
    EXPECT_TRUE(circle->center().isEqualTo(positionOf(symbol)));
  }
  static void expectRuns(const AcDbObjectId& id, const AcGePoint3d& from, const AcGePoint3d& to) {
    const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
    ASSERT_TRUE(curve);
    AcGePoint3d start;
    AcGePoint3d end;
    curve->getStartPoint(start);
    curve->getEndPoint(end);
    EXPECT_LT(start.distanceTo(from), 1e-8) << "starts at " << start.x << ',' << start.y;
    EXPECT_LT(end.distanceTo(to), 1e-8) << "ends at " << end.x << ',' << end.y;
  }
  static CString xdata(const AcDbObjectId& id, const wchar_t* key) {
    CString value = L"(none)";
    ZP::GetXdata(id, key, value);
    return value;
  }
  void expectSound() {
    for (const auto& finding : acdbAudit(database(), false)) ADD_FAILURE() << finding.text.ToUtf8();
  }

  TempInstall m_install;
};
