// Two curves have a joint only where an end of one lies on the other. So the curves through each end are
// looked up first, and only such pairs are compared. A pair all of whose ends on the other are known joints
// has nothing to add, which keeps a place where thousands of pipes end from costing their square.
#include "plugin/tools/crossings/Joints.h"

#include <algorithm>

#include "host/db/CurveCrossings.h"
#include "host/ge/CurveClosest.h"
#include "plugin/tools/crossings/EndNodes.h"
#include "plugin/tools/crossings/JointList.h"
#include "plugin/tools/crossings/PipeIndex.h"

namespace crossings {

namespace {

struct Pipe {
  ge::Curve curve;
  AcGePoint3d start;
  AcGePoint3d end;
};

// Those that can be opened; only their order counts.
std::vector<Pipe> ReadPipes(const AcDbObjectIdArray& ids) {
  std::vector<Pipe> pipes;
  pipes.reserve(static_cast<std::size_t>(ids.length()));
  for (const auto& id : ids) {
    auto curve = GeometryOf(id);
    if (!curve) continue;
    const auto start = ge::StartPoint(*curve);
    const auto end = ge::EndPoint(*curve);
    if (start && end) pipes.push_back({std::move(*curve), start.value, end.value});
  }
  return pipes;
}

std::vector<AcGePoint3d> EndsOf(const std::vector<Pipe>& pipes) {
  std::vector<AcGePoint3d> ends;
  ends.reserve(2 * pipes.size());
  for (const Pipe& pipe : pipes) {
    ends.push_back(pipe.start);
    ends.push_back(pipe.end);
  }
  return ends;
}

class Search {
 public:
  explicit Search(std::vector<Pipe> pipes)
      : m_pipes(std::move(pipes)), m_nodes(EndsOf(m_pipes)), m_pipesAt(Count(m_nodes.Count())),
        m_endingAt(Count(m_nodes.Count())), m_nodesOn(m_pipes.size()), m_known(Count(m_nodes.Count())) {
    MeasureSlack();
    LinkNodes();
  }

  std::vector<AcGePoint3d> Run() {
    for (int i = 0; i < static_cast<int>(m_pipes.size()); ++i) VisitPairsOf(i);
    return m_joints.Take();
  }

 private:
  // A later pipe, and an end of either through which both pass.
  struct Candidate {
    int pipe;
    int node;
  };

  static std::size_t Count(int count) { return static_cast<std::size_t>(count); }
  const Pipe& At(int pipe) const { return m_pipes[Count(pipe)]; }

  // Pairs are compared with the tolerance of the larger curve; looking twice as far as that of the largest
  // loses none.
  void MeasureSlack() {
    for (const Pipe& pipe : m_pipes) m_slack = std::max(m_slack, 2.0 * pipe.curve.Tolerance());
  }

  void LinkNodes() {
    std::vector<SpatialIndex::Entry> boxes(m_pipes.size());
    for (std::size_t i = 0; i < m_pipes.size(); ++i) {
      boxes[i] = {entity::planBox(m_pipes[i].curve), i};
      const int start = m_nodes.Find(m_pipes[i].start);
      const int end = m_nodes.Find(m_pipes[i].end);
      m_endingAt[Count(start)].push_back(static_cast<int>(i));
      if (end != start) m_endingAt[Count(end)].push_back(static_cast<int>(i));
    }
    const SpatialIndex index(boxes);
    for (int node = 0; node < m_nodes.Count(); ++node) {
      const AcGePoint3d& p = m_nodes.Point(node);
      auto& through = m_pipesAt[Count(node)];
      index.visit({p.x - m_slack, p.y - m_slack, p.x + m_slack, p.y + m_slack}, [&](std::size_t pipe) {
        const auto closest = ge::ClosestPoint(m_pipes[pipe].curve, p);
        if (closest && closest.value.distance <= m_slack) through.push_back(static_cast<int>(pipe));
      });
      std::sort(through.begin(), through.end());
      // An end that no other pipe passes is no joint.
      if (through.size() < 2) continue;
      for (const int pipe : through) m_nodesOn[Count(pipe)].push_back(node);
    }
  }

  void VisitPairsOf(int i) {
    m_candidates.clear();
    for (const int node : m_nodesOn[Count(i)]) {
      if (m_known[Count(node)]) continue;
      const auto& ending = m_endingAt[Count(node)];
      const bool isOwn = std::binary_search(ending.begin(), ending.end(), i);
      const auto& others = isOwn ? m_pipesAt[Count(node)] : ending;
      for (auto j = std::upper_bound(others.begin(), others.end(), i); j != others.end(); ++j)
        m_candidates.push_back({*j, node});
    }
    std::sort(m_candidates.begin(), m_candidates.end(),
              [](const Candidate& a, const Candidate& b) { return a.pipe < b.pipe; });
    int compared = -1;
    for (const Candidate& candidate : m_candidates) {
      if (candidate.pipe == compared || m_known[Count(candidate.node)]) continue;
      compared = candidate.pipe;
      Compare(At(i), At(compared));
    }
  }

  void Compare(const Pipe& a, const Pipe& b) {
    if (a.start.isEqualTo(b.start) || a.start.isEqualTo(b.end)) return Add(a.start);
    if (a.end.isEqualTo(b.start) || a.end.isEqualTo(b.end)) return Add(a.end);
    for (const auto& meeting : ge::Intersect(a.curve, b.curve).points) {
      const AcGePoint3d& p = meeting.point;
      if (p.isEqualTo(a.start) || p.isEqualTo(a.end) || p.isEqualTo(b.start) || p.isEqualTo(b.end)) Add(p);
    }
  }

  void Add(const AcGePoint3d& point) {
    const int node = m_nodes.Find(point);
    if (node >= 0) {
      if (m_known[Count(node)]) return;
      m_known[Count(node)] = true;
    }
    m_joints.Add(point);
  }

  std::vector<Pipe> m_pipes;
  EndNodes m_nodes;
  // By node: the pipes that pass it, and those of them that end there; ascending.
  std::vector<std::vector<int>> m_pipesAt;
  std::vector<std::vector<int>> m_endingAt;
  std::vector<std::vector<int>> m_nodesOn; // by pipe
  std::vector<bool> m_known;               // by node: it has been added
  JointList m_joints;
  std::vector<Candidate> m_candidates;
  double m_slack = 0.0;
};

} // namespace

std::vector<AcGePoint3d> FindJoints(const AcDbObjectIdArray& ids) {
  return Search(ReadPipes(ids)).Run();
}

} // namespace crossings
