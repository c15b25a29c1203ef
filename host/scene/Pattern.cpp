#include "host/scene/Pattern.h"

#include "host/scene/Cubic.h"

#include <array>
#include <cmath>

namespace scene {
namespace {

// A line or a curve with the lengths up to evenly spaced parameters.
class Piece {
 public:
  static constexpr int kSteps = 16;

  Piece(const AcGePoint2d& from, const AcGePoint2d& to)
      : m_cubic{from, from, to, to}, m_length(from.distanceTo(to)) {}
  explicit Piece(const Cubic& cubic) : m_cubic(cubic), m_isCurve(true) {
    AcGePoint2d previous = cubic.start;
    for (int i = 1; i <= kSteps; ++i) {
      const AcGePoint2d next = cubic.at(static_cast<double>(i) / kSteps);
      m_length += previous.distanceTo(next);
      m_lengths[static_cast<std::size_t>(i)] = m_length;
      previous = next;
    }
  }

  double length() const { return m_length; }
  // Adds the stretch between two lengths; begins a part where asked to.
  void add(double from, double to, bool begin, Path& out) const {
    if (!m_isCurve) {
      if (begin) out.move(onLine(from));
      out.line(onLine(to));
      return;
    }
    const Cubic part = m_cubic.between(parameter(from), parameter(to));
    if (begin) out.move(part.start);
    out.curve(part.control1, part.control2, part.end, !begin);
  }

 private:
  AcGePoint2d onLine(double at) const {
    const double t = m_length > 0 ? at / m_length : 0;
    const AcGePoint2d& a = m_cubic.start;
    const AcGePoint2d& b = m_cubic.end;
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
  }
  double parameter(double at) const {
    std::size_t i = 1;
    while (i < kSteps && m_lengths[i] < at) ++i;
    const double span = m_lengths[i] - m_lengths[i - 1];
    const double within = span > 0 ? (at - m_lengths[i - 1]) / span : 0;
    return (static_cast<double>(i) - 1 + within) / kSteps;
  }

  Cubic m_cubic;
  double m_length = 0;
  bool m_isCurve = false;
  std::array<double, kSteps + 1> m_lengths{};
};

// Lays dashes along a run of pieces that one pattern goes through.
class Run {
 public:
  Run(const Pattern& pattern, double patternLength, std::size_t maxDashes, Path& out)
      : m_pattern(pattern), m_patternLength(patternLength), m_maxDashes(maxDashes), m_out(out) {}

  void add(const Piece& piece) {
    m_pieces.push_back(piece);
    m_length += piece.length();
  }
  // Ends the run. False when there would be more dashes than allowed.
  bool flush() {
    const bool ok = m_pieces.empty() || lay();
    m_pieces.clear();
    m_length = m_searchedTo = 0;
    m_at = 0;
    return ok;
  }

 private:
  bool lay() {
    const double count = std::floor(m_length / m_patternLength + 1e-9);
    if (!std::isfinite(count) || count * static_cast<double>(m_pattern.dashes.size()) > 1e9) return false;
    if (count < 1) {
      stretch(0, m_length);
      return true;
    }
    m_made += static_cast<std::size_t>(count) * m_pattern.dashes.size();
    if (m_made > m_maxDashes) return false;
    const double first = m_pattern.dashes.front();
    // Half of what the whole patterns leave over goes to each end.
    const double end = (m_length - count * m_patternLength + std::max(first, 0.0)) / 2;
    double at = 0;
    if (first > 0) {
      stretch(0, end);
      at = end;
    } else {
      at = end;
      step(first, at);
    }
    for (std::size_t i = 1; at < m_length; i = (i + 1) % m_pattern.dashes.size()) {
      if (first > 0 && i == 0 && m_length - at <= end * (1 + 1e-9)) {
        stretch(at, m_length);
        break;
      }
      step(m_pattern.dashes[i], at);
    }
    return true;
  }
  void step(double dash, double& at) {
    if (dash >= 0) stretch(at, std::min(at + dash, m_length));
    at += std::fabs(dash);
  }
  void stretch(double from, double to) {
    double before = 0;
    bool begin = true;
    // Dashes come in order, so the search goes on from where the last one began.
    if (from < m_searchedTo || m_at >= m_pieces.size()) m_at = 0, m_searchedTo = 0;
    before = m_searchedTo;
    for (std::size_t i = m_at; i < m_pieces.size(); ++i) {
      const double after = before + m_pieces[i].length();
      if (after >= from) {
        if (begin) m_at = i, m_searchedTo = before;
        const double last = std::min(to - before, m_pieces[i].length());
        m_pieces[i].add(std::max(from - before, 0.0), last, begin, m_out);
        begin = false;
      }
      if (after >= to) break;
      before = after;
    }
  }

  const Pattern& m_pattern;
  double m_patternLength;
  std::size_t m_maxDashes;
  Path& m_out;
  std::vector<Piece> m_pieces;
  double m_length = 0;
  std::size_t m_made = 0;
  std::size_t m_at = 0;
  double m_searchedTo = 0;
};

} // namespace

double Pattern::length() const {
  double sum = 0;
  for (const double dash : dashes) sum += std::fabs(dash);
  return sum;
}

bool AddDashes(PathView path, const Pattern& pattern, std::size_t maxDashes, Path& dashed) {
  const double length = pattern.length();
  if (!(length > 0) || !std::isfinite(length) || pattern.dashes.size() < 2) return false;
  Run run(pattern, length, maxDashes, dashed);
  AcGePoint2d first;
  AcGePoint2d last;
  std::size_t at = 0;
  for (const Verb verb : path.verbs) {
    const bool newRun = verb == Verb::move || (pattern.bySegment && verb != Verb::curveOn);
    if (newRun && !run.flush()) return false;
    const AcGePoint2d* p = path.points.data() + at;
    switch (verb) {
    case Verb::move:
      first = last = p[0];
      break;
    case Verb::line:
      run.add(Piece(last, p[0]));
      last = p[0];
      break;
    case Verb::curve:
    case Verb::curveOn:
      run.add(Piece(Cubic{last, p[0], p[1], p[2]}));
      last = p[2];
      break;
    case Verb::close:
      if (last.x != first.x || last.y != first.y) run.add(Piece(last, first));
      last = first;
      break;
    }
    at += PointsOf(verb);
  }
  return run.flush();
}

} // namespace scene
