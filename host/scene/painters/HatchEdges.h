// The edges that a hatch's boundary is made of.
#pragma once

#include "host/scene/EntityTags.h"
#include "host/scene/Path.h"

namespace scene {

// Walks tags in their order; what isn't there reads as 0.
class TagCursor {
 public:
  explicit TagCursor(DxfTags tags) : m_tags(tags) {}
  bool atEnd() const { return m_at >= m_tags.size(); }
  int code() const { return atEnd() ? -1 : m_tags[m_at].code; }
  const DxfTag& tag() const { return m_tags[m_at]; }
  void step() { ++m_at; }
  // The value of the next tag if it has the code, which is then passed.
  double real(int code, double otherwise = 0);
  long long integer(int code, long long otherwise = 0);
  AcGePoint2d point(int code); // with code + 10

 private:
  DxfTags m_tags;
  std::size_t m_at = 0;
};

// One edge, beginning at its kind (72): a path of one open part, empty for a kind that there is none of.
Path ReadHatchEdge(TagCursor& cursor);
// A boundary given as a polyline, beginning behind its flags (92).
Path ReadHatchPolyline(TagCursor& cursor);
// Puts edges end to end, turning round those that were stored backwards, and closes the loop.
Path JoinHatchEdges(const std::vector<Path>& edges);

} // namespace scene
