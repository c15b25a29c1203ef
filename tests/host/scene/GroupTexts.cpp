#include "tests/host/scene/GroupTexts.h"

namespace {

class GroupText {
 public:
  GroupText(const scene::Scene& picture, const scene::Group& group) : m_picture(picture) {
    put(group.entity.stub());
    put(group.unbounded);
    put(group.box);
    for (std::uint32_t i = 0; i < group.primitiveCount; ++i)
      put(picture.primitives[group.firstPrimitive + i]);
  }
  std::string take() { return std::move(m_text); }

 private:
  template <typename Plain> void put(const Plain& value) {
    m_text.append(reinterpret_cast<const char*>(&value), sizeof value);
  }
  void put(const ge::Box2d& box) {
    for (const double v : {box.minX, box.minY, box.maxX, box.maxY}) put(v);
  }
  void put(scene::PathView path) {
    for (const auto verb : path.verbs) put(verb);
    for (const auto& p : path.points) {
      put(p.x);
      put(p.y);
    }
  }
  void put(const scene::Primitive& primitive) {
    put(primitive.kind);
    put(primitive.color.rgb);
    put(primitive.color.kind);
    put(primitive.color.alpha);
    put(primitive.weight);
    put(primitive.width);
    put(m_picture.path(primitive));
    if (primitive.pattern != scene::Primitive::kNone) {
      const auto& pattern = m_picture.patterns[static_cast<std::size_t>(primitive.pattern)];
      put(pattern.bySegment);
      for (const double dash : pattern.dashes) put(dash);
    }
    for (auto clip = primitive.clip; clip != scene::Primitive::kNone;
         clip = m_picture.clips[static_cast<std::size_t>(clip)].within)
      put(m_picture.clips[static_cast<std::size_t>(clip)].path.view());
    if (primitive.kind != scene::Primitive::Kind::text) return;
    const auto& run = m_picture.texts[primitive.text];
    m_text += CString(run.text).ToUtf8();
    for (const double v :
         {run.origin.x, run.origin.y, run.along.x, run.along.y, run.up.x, run.up.y, run.advance})
      put(v);
  }

  const scene::Scene& m_picture;
  std::string m_text;
};

void add(const scene::Scene& picture, std::vector<std::string>& all) {
  for (const auto& group : picture.groups) all.push_back(GroupText(picture, group).take());
}

} // namespace

std::vector<std::string> GroupTexts(const scene::Scene& picture) {
  std::vector<std::string> all;
  add(picture, all);
  return all;
}

std::vector<std::string> GroupTexts(const scene::LiveScene& picture) {
  std::vector<std::string> all;
  for (std::size_t i = 0; i < picture.pageCount(); ++i) add(picture.page(i), all);
  return all;
}
