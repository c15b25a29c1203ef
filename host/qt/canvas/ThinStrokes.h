// Strokes of a scene as thin lines on the screen: curves as chords that can't be told from them, dashes laid
// by the rules of scene::AddDashes where they can be seen.
#pragma once

#include "host/qt/canvas/ThinLines.h"
#include "host/qt/canvas/ViewMap.h"
#include "host/scene/Cubic.h"
#include "host/scene/Pattern.h"

#include <vector>

namespace desktop {

class ThinStrokes {
 public:
  ThinStrokes(ThinLines& lines, const ViewMap& map);
  // pattern may be null. A path that isn't smooth has no curves, see ThinLines::line.
  void draw(scene::PathView path, const scene::Pattern* pattern, bool smooth);

 private:
  AcGePoint2d onScreen(const AcGePoint2d& p) const {
    return {m_middle.x + (p.x - m_centre.x) * m_scale, m_middle.y - (p.y - m_centre.y) * m_scale};
  }
  void setPattern(const scene::Pattern* pattern);
  void lineTo(const AcGePoint2d& to);
  void curveTo(const scene::Cubic& curve, int depth);
  void through(scene::PathView path, bool bySegment);
  void flush();
  void dashes(const AcGePoint2d& from, const AcGePoint2d& to, double before, double length, double all);

  ThinLines& m_lines;
  AcGePoint2d m_middle; // of the window, in pixels
  AcGePoint2d m_centre; // the same place in the drawing
  double m_scale;       // pixels for a drawing unit
  bool m_smooth = true;
  bool m_dashed = false;
  AcGePoint2d m_at;             // where the pen stands
  std::vector<double> m_dashes; // in pixels
  double m_period = 0;
  std::vector<AcGePoint2d> m_stretch; // that one pattern goes through
};

} // namespace desktop
