// Crossing bends: where pipes of different elevations meet in plan, a small circle stands for the vertical
// run that joins them. The lower pipes stop at its edge, the higher ones run to its centre. The circle is a
// block, marked by extended data, and at the same time a riser that knows the elevations which it joins.
// docs/crossing-bends.md shows what comes of a drawing.
//
// A sibling makes one of these within a command of its own, limits the layers if it likes, and calls Go.
#pragma once

#include "host/afx/CStringArray.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/base/ZpExport.h"
#include "plugin/graph/AcArray.h"

class AcDbArc;
class AcDbBlockTableRecord;
class AcDbCircle;
class PlainCrossings;

class ZP_EXPORT ZPKwCl {
 public:
  ZPKwCl();
  // arcOuch: the circle is broken where higher pipes pass, otherwise it is full. radius: drawing units; with
  // one that no circle can have (0, negative, not finite) AddKw leaves the drawing as it is.
  ZPKwCl(bool arcOuch, double radius);
  virtual ~ZPKwCl();

  // Layers that Go limits the selection of pipes to; none for all of them. A name may hold wildcards. Old
  // symbols can be selected whatever their layer.
  void SetFiltrationLayer(const CStringArray& layers);

  // Asks for pipes and makes the bends. Says so when none could be made; silent when nothing was selected.
  void Go();

  // The same for entities given by their ids, without a word. Curves are pipes; every block reference counts
  // as an old symbol, is erased, and the pipes that it had cut back run to its place again; ids of other
  // entities, and of what can't be opened for write, are passed over. Ids of earlier calls on this object
  // take part again.
  void AddKw(AcDbObjectIdArray ids);

 private:
  friend class PlainCrossings; // for tests: the same by comparing everything with everything

  void CheckPipecoil(AcDbObjectIdArray& ids);
  void CreateKwEnt(AcDbObjectIdArray upper, AcDbObjectIdArray lower, const AcGePoint3d& point,
                   double minElevation, double maxElevation);
  bool CreateArcOuch(AcDbObjectIdArray ids, AcDbCircle* circle, AcDbBlockTableRecord*& record);
  void CreateArc(AcDbArc* arc, AcGePoint3d start, AcGePoint3d end, AcGePoint3d center, double radius);

  bool m_bArcOuch;
  bool m_bCreated = false; // a symbol was made since Go began
  AcDbObjectIdArray m_ids; // all curves under work; grows as curves are split
  CStringArray m_layers;   // that the selection is limited to
  double m_dRadius;        // of the symbol
};
