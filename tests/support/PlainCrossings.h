// Crossing bends by comparing everything with everything: each curve with all that follow it for the joints,
// each joint with all curves for its pipes, each old symbol with all curves for its ends. Slow and plain;
// what the tool does by an index must come out the same, in the same order.
#pragma once

#include <cmath>
#include <memory>
#include <vector>

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbPoint.h"
#include "host/ge/CurveClosest.h"
#include "plugin/base/Tolerance.h"
#include "plugin/graph/CurveEnds.h"
#include "plugin/pipes/attributes/Elevation.h"
#include "plugin/tools/ZPKwCl.h"

class PlainCrossings {
 public:
  PlainCrossings(bool arcOuch, double radius) : m_bends(arcOuch, radius) {}

  void AddKw(AcDbObjectIdArray ids) {
    TakeOutOldSymbols(ids);
    m_bends.m_ids.append(ids);
    std::vector<AcGePoint3d> joints = FindJoints();
    for (std::size_t k = 0; k < joints.size(); ++k) {
      const AcGePoint3d point = joints[k];
      for (std::size_t later = joints.size() - 1; later > k; --later)
        if (joints[later].isEqualTo(point)) joints.erase(joints.begin() + static_cast<std::ptrdiff_t>(later));
      WorkOn(point);
    }
  }

  const AcDbObjectIdArray& Ids() const { return IdsOf(m_bends); }
  static const AcDbObjectIdArray& IdsOf(const ZPKwCl& bends) { return bends.m_ids; }

 private:
  struct Ends {
    AcGePoint3d start;
    AcGePoint3d end;
  };
  static bool GetEnds(const AcDbCurve& curve, Ends& ends) {
    return curve.getStartPoint(ends.start) == Acad::eOk && curve.getEndPoint(ends.end) == Acad::eOk;
  }
  static void TakeOutOldSymbols(AcDbObjectIdArray& ids) {
    for (int i = 0; i < ids.length();) {
      const AcDbObjectPointer<AcDbEntity> entity(ids[i], AcDb::kForWrite);
      if (entity && AcDbCurve::cast(entity.object())) {
        ++i;
        continue;
      }
      ids.removeAt(i);
      auto* symbol = entity ? AcDbBlockReference::cast(entity.object()) : nullptr;
      if (!symbol) continue;
      GiveBack(*symbol, ids);
      symbol->erase();
    }
  }

  static void GiveBack(const AcDbBlockReference& symbol, const AcDbObjectIdArray& ids) {
    std::vector<AcDbEntity*> parts;
    if (symbol.explode(parts) != Acad::eOk || parts.empty()) return;
    const std::vector<std::unique_ptr<AcDbEntity>> owned(parts.begin(), parts.end());
    AcDbCircle circle;
    if (const auto* arc = AcDbArc::cast(parts[0])) {
      circle.setCenter(arc->center());
      circle.setRadius(arc->radius());
    } else if (const auto* whole = AcDbCircle::cast(parts[0])) {
      circle.setCenter(whole->center());
      circle.setRadius(whole->radius());
    } else {
      return;
    }
    const AcDbPoint place(symbol.position());
    for (const auto& id : ids) {
      const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForWrite);
      std::vector<AcGePoint3d> points;
      if (!curve || curve->intersectWith(&place, AcDb::kExtendThis, points) != Acad::eOk || points.empty())
        continue;
      points.clear();
      Ends ends;
      if (circle.intersectWith(curve, AcDb::kOnBothOperands, points) != Acad::eOk || points.size() != 1 ||
          !GetEnds(*curve.object(), ends))
        continue;
      if (points[0].isEqualTo(ends.start))
        ZP::ChangeCurveStart(curve, symbol.position());
      else if (points[0].isEqualTo(ends.end))
        ZP::ChangeCurveEnd(curve, symbol.position());
    }
  }

  std::vector<AcGePoint3d> FindJoints() const {
    std::vector<AcGePoint3d> joints;
    const AcDbObjectIdArray& ids = m_bends.m_ids;
    for (int i = 0; i < ids.length(); ++i) {
      for (int j = i + 1; j < ids.length(); ++j) {
        const AcDbObjectPointer<AcDbCurve> first(ids[i], AcDb::kForRead);
        const AcDbObjectPointer<AcDbCurve> second(ids[j], AcDb::kForRead);
        Ends a;
        Ends b;
        if (!first || !second || !GetEnds(*first.object(), a) || !GetEnds(*second.object(), b)) continue;
        if (a.start.isEqualTo(b.start) || a.start.isEqualTo(b.end)) {
          joints.push_back(a.start);
        } else if (a.end.isEqualTo(b.start) || a.end.isEqualTo(b.end)) {
          joints.push_back(a.end);
        } else {
          std::vector<AcGePoint3d> points;
          first->intersectWith(second, AcDb::kOnBothOperands, points);
          for (const AcGePoint3d& p : points)
            if (p.isEqualTo(a.start) || p.isEqualTo(a.end) || p.isEqualTo(b.start) || p.isEqualTo(b.end))
              joints.push_back(p);
        }
      }
    }
    return joints;
  }

  static bool Passes(const AcDbObjectId& id, const AcGePoint3d& point) {
    const AcDbObjectPointer<AcDbCurve> curve(id, AcDb::kForRead);
    ge::Curve geometry;
    return curve && curve->getCurve(geometry) == Acad::eOk && ge::IsOnCurve(geometry, point);
  }

  void WorkOn(const AcGePoint3d& point) {
    double maxElevation = -999999.0;
    double minElevation = 999999.0;
    AcDbObjectIdArray upper;
    AcDbObjectIdArray lower;
    for (int i = 0; i < m_bends.m_ids.length(); ++i) {
      const AcDbObjectId id = m_bends.m_ids[i];
      if (!Passes(id, point)) continue;
      double elevation = ZP::GetElevation(id);
      if (!std::isfinite(elevation)) elevation = 0;
      if (ZP::IsEqual(elevation, maxElevation, 0.001)) {
        upper.append(id);
      } else if (ZP::Greater(elevation, maxElevation)) {
        maxElevation = elevation;
        lower.append(upper);
        upper = AcDbObjectIdArray();
        upper.append(id);
      } else {
        lower.append(id);
      }
      if (ZP::Less(elevation, minElevation)) minElevation = elevation;
    }
    if (!lower.isEmpty()) m_bends.CreateKwEnt(upper, lower, point, minElevation, maxElevation);
  }

  ZPKwCl m_bends;
};
