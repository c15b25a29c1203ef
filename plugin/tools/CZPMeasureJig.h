// Takes a length or an area from the drawing: the user traces a path of straight segments and arcs, sees it
// in red, and the caller gets a number. What was traced goes from the drawing with the jig.
#pragma once

#include "host/ed/AcEdJig.h"
#include "plugin/graph/AcArray.h"
#include "plugin/graph/VkGePolyline2d.h"

class ZP_EXPORT CZPMeasureJig : public AcEdJig {
 public:
  CZPMeasureJig() = default;
  // Erases what was traced. The piece in progress was never in the drawing; it goes with the jig.
  ~CZPMeasureJig() override;
  CZPMeasureJig(const CZPMeasureJig&) = delete;
  CZPMeasureJig& operator=(const CZPMeasureJig&) = delete;

  // One measurement for each object. Enter and Escape both end the path; a path that never began measures 0.
  // Metres, of a drawing in millimetres; the unit of the drawing isn't looked at. The piece still being
  // dragged doesn't count.
  double MeasureLength();
  // first and last become the ends of the path; they stay as they are when it never began.
  double MeasureLength(AcGePoint3d& first, AcGePoint3d& last);
  // Square metres of the path closed by a straight line, by the unit of the drawing (VkDbGetDrawUnit).
  double MeasureArea();

  // The traced path; pieces that can't be opened any more are left out.
  VkGePolyline2d GetOutLine() const;

  // Asks where the path begins. False for Enter and Escape.
  bool GetSelectedFirstPoint();
  // Takes the last finished piece back. False when there is none.
  bool Undo();
  // Adds the piece in progress to the current space, in red, and begins a straight one at the cursor.
  void AddToModelSpace();

  DragStatus sampler() override;
  bool update() override;
  AcDbEntity* entity() const override { return Entity; }

  AcArray<AcDbObjectId> ObjectIds; // of the finished pieces, in order
  AcArray<AcGePoint3d> Points;     // the first point, then the end of each finished piece, world coordinates
  AcDbEntity* Entity = nullptr;    // the piece being dragged, a line or an arc; the jig's own
  AcGePoint3d CurrentPoint;        // sampled last
  AcGePoint3d FirstPoint;          // where the path began
  int Mode = 0;                    // 0 straight, 1 arc
  int ArcStep = 0;                 // 1 waiting for an arc's end point, 2 for a point on it

 private:
  void doIt();
};
