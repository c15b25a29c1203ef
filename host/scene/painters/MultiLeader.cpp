// MULTILEADER: its lines with their arrows, and the text or block at their end.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/DxfText.h"
#include "host/scene/SplineCurve.h"
#include "host/scene/painters/Arrow.h"
#include "host/scene/painters/MTextDrawing.h"
#include "host/scene/painters/Painters.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

struct LeaderLine {
  std::vector<AcGePoint3d> points;
  AcGePoint3d landing;
  AcGeVector3d dogleg;
};

struct Content {
  std::vector<LeaderLine> lines;
  double arrow = 0;
  double height = 0;
  CString text;
  AcDbObjectId style;
  AcGePoint3d textAt;
  AcGeVector3d textAlong{1, 0, 0};
  AcGeVector3d textNormal{0, 0, 1};
  double textWidth = 0;
  long long textAlignment = 1; // left, middle, right
  bool hasText = false;
  bool hasBlock = false;
  AcDbObjectId block;
  AcGeMatrix3d blockMatrix;
};

struct Reader {
  explicit Reader(Pen& pen) : m_pen(pen) {}

  Content read() {
    for (const DxfTag& tag : m_pen.tags()) {
      if (tag.code == 300 || tag.code == 302 || (tag.code == 304 && isOpening(tag))) {
        open(tag);
      } else if (tag.code == 301 || tag.code == 303 || tag.code == 305) {
        if (tag.code == 301) break; // what follows are settings that the lines already obey
        close();
      } else if (m_depth == 1) {
        context(tag);
      } else if (m_depth == 2) {
        leader(tag);
      } else if (m_depth == 3) {
        leaderLine(tag);
      }
    }
    return std::move(m_content);
  }

 private:
  static bool isOpening(const DxfTag& tag) { return dxf::trimBlanks(tag.value) == "LEADER_LINE{"; }
  void open(const DxfTag&) {
    ++m_depth;
    if (m_depth == 2) m_node = LeaderLine(), m_firstOfNode = m_content.lines.size();
    if (m_depth == 3) m_content.lines.emplace_back();
  }
  void close() {
    if (m_depth == 2) {
      for (std::size_t i = m_firstOfNode; i < m_content.lines.size(); ++i) {
        m_content.lines[i].landing = m_node.landing;
        m_content.lines[i].dogleg = m_node.dogleg * m_doglegLength;
      }
    }
    --m_depth;
  }
  AcDbObjectId object(const DxfTag& tag) const {
    AcDbObjectId id;
    m_pen.database().getAcDbObjectId(id, false, AcDbHandle::fromHex(tag.value));
    return id;
  }
  static void vector(const DxfTag& tag, int code, AcGeVector3d& v) {
    AcGePoint3d p(v.x, v.y, v.z);
    if (tag.code == code) p = AcGePoint3d();
    if (ReadCoordinate(tag, code, p)) v = p.asVector();
  }
  void context(const DxfTag& tag) {
    Content& c = m_content;
    if (tag.code == 41) c.height = RealOf(tag);
    if (tag.code == 140) c.arrow = RealOf(tag);
    if (tag.code == 290) c.hasText = IntegerOf(tag) != 0;
    if (tag.code == 304) c.text = dxf::decodeText(tag.value);
    if (tag.code == 340) c.style = object(tag);
    if (tag.code == 43) c.textWidth = RealOf(tag);
    if (tag.code == 171) c.textAlignment = IntegerOf(tag, 1);
    ReadCoordinate(tag, 12, c.textAt);
    vector(tag, 11, c.textNormal);
    vector(tag, 13, c.textAlong);
    if (tag.code == 296) c.hasBlock = IntegerOf(tag) != 0;
    if (tag.code == 341) c.block = object(tag);
    if (tag.code == 47 && m_matrixAt < 16) {
      c.blockMatrix.entry[m_matrixAt / 4][m_matrixAt % 4] = RealOf(tag);
      ++m_matrixAt;
    }
  }
  void leader(const DxfTag& tag) {
    ReadCoordinate(tag, 10, m_node.landing);
    vector(tag, 11, m_node.dogleg);
    if (tag.code == 40) m_doglegLength = RealOf(tag);
  }
  void leaderLine(const DxfTag& tag) {
    auto& points = m_content.lines.back().points;
    if (tag.code == 10) points.emplace_back();
    if (!points.empty()) ReadCoordinate(tag, 10, points.back());
  }

  Pen& m_pen;
  Content m_content;
  LeaderLine m_node;
  std::size_t m_firstOfNode = 0;
  double m_doglegLength = 0;
  int m_depth = 0;
  std::size_t m_matrixAt = 0;
};

void drawLine(Pen& pen, const LeaderLine& line, double arrow, bool isSpline) {
  std::vector<AcGePoint3d> points = line.points;
  points.push_back(line.landing);
  if (points.size() < 2) return;
  PathPen path = pen.path();
  if (isSpline && points.size() > 2) {
    SplineCurve curve;
    curve.fits = points;
    curve.addTo(path);
  } else {
    for (const AcGePoint3d& p : points) path.isEmpty() ? path.move(p) : path.line(p);
  }
  if (line.dogleg.length() > 0) path.line(line.landing + line.dogleg);
  pen.stroke(path);
  const AcGeVector3d first = points[1] - points[0];
  if (first.length() > arrow) DrawArrow(pen, points[0], first / first.length(), arrow);
}

void drawText(Pen& pen, const Content& content) {
  MTextForm form;
  form.height = content.height;
  form.width = std::max(0.0, content.textWidth);
  form.attachment = static_cast<int>(std::clamp<long long>(content.textAlignment, 1, 3));
  MTextPlace place;
  place.at = content.textAt;
  place.along = content.textAlong;
  place.normal = content.textNormal.isZeroLength() ? AcGeVector3d(0, 0, 1) : content.textNormal.normal();
  DrawMText(pen, content.text, pen.style(content.style), form, place);
}

} // namespace

void painters::MultiLeader(Pen& pen) {
  const Content content = Reader(pen).read();
  long long kind = 1;
  bool behind = false;
  for (const DxfTag& tag : pen.tags()) {
    if (tag.code == 301) behind = true;
    if (behind && tag.code == 170) kind = IntegerOf(tag, 1);
  }
  if (kind != 0)
    for (const LeaderLine& line : content.lines) drawLine(pen, line, content.arrow, kind == 2);
  if (content.hasText && content.height > 0) drawText(pen, content);
  if (content.hasBlock && AcDbBlockTableRecord::cast(content.block.object()))
    pen.block(content.block, content.blockMatrix);
}

} // namespace scene
