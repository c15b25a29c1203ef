// PLINE: a polyline of straight segments and arcs, each arc leaving in the direction in which the last
// segment came.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbPolyline.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace commands {
namespace {

struct Vertex {
  AcGePoint2d point;
  double bulge = 0; // of the segment that begins here
  double width = 0; // of the same
};

double InHalfTurns(double angle) {
  return std::remainder(angle, 2 * std::numbers::pi);
}

double DirectionTo(const AcGePoint2d& from, const AcGePoint2d& to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

class Path {
 public:
  explicit Path(const AcGePoint3d& start)
      : m_vertices{{AcGePoint2d(start.x, start.y), 0, 0}}, m_elevation(start.z) {}

  std::size_t segments() const { return m_vertices.size() - 1; }
  AcGePoint2d last() const { return m_vertices.back().point; }
  AcGePoint3d lastInSpace() const { return at(last()); }
  AcGePoint3d firstInSpace() const { return at(m_vertices.front().point); }

  // In which direction the last segment arrives; that of the x axis before the first.
  double direction() const {
    if (segments() == 0) return 0;
    const auto& from = m_vertices[m_vertices.size() - 2];
    return DirectionTo(from.point, last()) + 2 * std::atan(from.bulge);
  }
  double tangentBulge(const AcGePoint2d& to) const {
    return std::tan(InHalfTurns(DirectionTo(last(), to) - direction()) / 2);
  }
  // The bulge of an arc through a point; nothing where the three lie on a line.
  std::optional<double> bulgeThrough(const AcGePoint2d& on, const AcGePoint2d& to) const {
    const double half = InHalfTurns(DirectionTo(on, to) - DirectionTo(last(), on));
    const double bulge = std::tan(half / 2);
    if (std::fabs(half) < 1e-9 || !std::isfinite(bulge) || std::fabs(bulge) > 1e9) return std::nullopt;
    return bulge;
  }
  void add(const AcGePoint2d& to, double bulge, double width) {
    m_vertices.back().bulge = bulge;
    m_vertices.back().width = width;
    m_vertices.push_back({to, 0, 0});
  }
  void takeBack() {
    m_vertices.pop_back();
    m_vertices.back().bulge = 0;
  }
  std::unique_ptr<AcDbPolyline> polyline(bool closed) const {
    auto polyline = std::make_unique<AcDbPolyline>();
    for (const auto& vertex : m_vertices)
      polyline->addVertexAt(polyline->numVerts(), vertex.point, vertex.bulge, vertex.width, vertex.width);
    polyline->setElevation(m_elevation);
    polyline->setClosed(closed);
    return polyline;
  }
  // Closes it by a segment of its own from the last vertex to the first.
  void bendClosing(double bulge, double width) {
    m_vertices.back().bulge = bulge;
    m_vertices.back().width = width;
  }

 private:
  AcGePoint3d at(const AcGePoint2d& p) const { return {p.x, p.y, m_elevation}; }
  std::vector<Vertex> m_vertices;
  double m_elevation;
};

class Dialogue {
 public:
  explicit Dialogue(const AcGePoint3d& start) : m_path(start) {}

  void run() {
    while (true) {
      const auto next = ask();
      if (next.isCancelled()) return;
      if (next.isNone()) return finish(false);
      if (next.isKeyword(L"Arc") || next.isKeyword(L"Line")) {
        m_arcs = next.isKeyword(L"Arc");
      } else if (next.isKeyword(L"Width")) {
        if (!askWidth()) return;
      } else if (next.isKeyword(L"Undo")) {
        takeBack();
      } else if (next.isKeyword(L"CLose") || next.isKeyword(L"Close")) {
        const auto first = m_path.firstInSpace();
        m_path.bendClosing(m_arcs ? m_path.tangentBulge({first.x, first.y}) : 0, m_width);
        return finish(true);
      } else if (next.isKeyword(L"Second")) {
        if (!addThroughSecond()) return;
      } else {
        const AcGePoint2d to(next.point.x, next.point.y);
        add(to, m_arcs ? m_path.tangentBulge(to) : 0);
      }
    }
  }

 private:
  ed::Answer ask() const {
    const bool canClose = m_path.segments() >= 2;
    ed::Question question;
    if (m_arcs) {
      question.prompt = canClose ? L"指定圆弧的端点或 [直线(L)/第二点(S)/闭合(CL)/宽度(W)/放弃(U)]:"
                                 : L"指定圆弧的端点或 [直线(L)/第二点(S)/宽度(W)/放弃(U)]:";
      question.keywords = canClose ? L"Line Second CLose Width Undo" : L"Line Second Width Undo";
    } else {
      question.prompt = canClose ? L"指定下一点或 [圆弧(A)/闭合(C)/宽度(W)/放弃(U)]:"
                                 : L"指定下一点或 [圆弧(A)/宽度(W)/放弃(U)]:";
      question.keywords = canClose ? L"Arc Close Width Undo" : L"Arc Width Undo";
    }
    question.base = m_path.lastInSpace();
    question.preview = [this](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
      Path shown = m_path;
      const AcGePoint2d to(cursor.x, cursor.y);
      shown.add(to, m_arcs ? shown.tangentBulge(to) : 0, m_width);
      shown.polyline(false)->worldDraw(draw);
    };
    return ed::AskPoint(question);
  }
  bool askWidth() {
    const auto width = ed::AskDistance({L"指定宽度:", {}, RSG_NONULL | RSG_NONEG, m_path.lastInSpace()});
    if (width.hasValue()) m_width = width.real;
    return width.hasValue();
  }
  bool addThroughSecond() {
    const auto second = ed::AskPoint({L"指定圆弧上的第二个点:", {}, RSG_NONULL, m_path.lastInSpace()});
    if (!second.hasValue()) return false;
    const auto end = ed::AskPoint({L"指定圆弧的端点:", {}, RSG_NONULL, second.point});
    if (!end.hasValue()) return false;
    const AcGePoint2d to(end.point.x, end.point.y);
    const auto bulge = m_path.bulgeThrough({second.point.x, second.point.y}, to);
    if (bulge)
      add(to, *bulge);
    else
      EdSession::instance().refuse(L"三点在一条直线上，没有圆弧。", L"不共线的点");
    return true;
  }
  void add(const AcGePoint2d& to, double bulge) {
    if (to.isEqualTo(m_path.last()) || !std::isfinite(bulge) || std::fabs(bulge) > 1e9) {
      EdSession::instance().refuse(L"这一段没有长度，或圆弧恰好折回。", L"另一个点");
      return;
    }
    m_path.add(to, bulge, m_width);
  }
  void takeBack() {
    if (m_path.segments() == 0) {
      acutPrintf(L"\n没有可放弃的线段。\n");
      return;
    }
    m_path.takeBack();
    curDoc()->edit().lastPoint = m_path.lastInSpace();
  }
  void finish(bool closed) const {
    if (m_path.segments() > 0) AppendEntity(m_path.polyline(closed));
  }

  Path m_path;
  bool m_arcs = false;
  double m_width = 0;
};

} // namespace

void Pline() {
  const auto start = ed::AskPoint({L"指定起点:", {}, RSG_NONULL, {}});
  if (start.hasValue()) Dialogue(start.point).run();
}

} // namespace commands
