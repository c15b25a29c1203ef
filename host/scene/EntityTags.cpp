#include "host/scene/EntityTags.h"

#include "host/db/DxfText.h"

#include <numbers>

namespace scene {
namespace {

constexpr int kExtendedData = 1000; // and above: often more than all the rest, and of no painter's concern

std::size_t endOfOwn(DxfTags tags) {
  std::size_t end = 0;
  while (end < tags.size() && tags[end].code != 101) ++end;
  return end;
}

// Behind the groups that applications and the database put in front, and behind the common marker.
std::size_t beginOfOwn(DxfTags tags) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < tags.size() && i < 40; ++i) {
    if (tags[i].code == 102 && tags[i].value == "}") begin = i + 1;
    if (tags[i].code == 100 && tags[i].value.starts_with("AcDbEntity")) return i + 1;
  }
  return begin;
}

} // namespace

bool HasExtensionDictionary(const DxfRecord& record) {
  int markers = 0;
  DxfTagReader reader(record.text());
  for (DxfTag tag; reader.next(tag) && tag.code < kExtendedData;) {
    if (tag.code == 102 && dxf::trimBlanks(tag.value) == "{ACAD_XDICTIONARY") return true;
    if (tag.code == 100 && ++markers == 2) return false; // groups stand ahead
  }
  return false;
}

double RealOf(const DxfTag& tag, double fallback) {
  return dxf::toReal(tag.value).value_or(fallback);
}

long long IntegerOf(const DxfTag& tag, long long fallback) {
  return dxf::toInteger(tag.value).value_or(fallback);
}

bool ReadCoordinate(const DxfTag& tag, int code, AcGePoint3d& point) {
  if (tag.code == code)
    point.x = RealOf(tag);
  else if (tag.code == code + 10)
    point.y = RealOf(tag);
  else if (tag.code == code + 20)
    point.z = RealOf(tag);
  else
    return false;
  return true;
}

DxfTags EntityTags::own() const {
  constexpr std::size_t kUsualTags = 40;
  if (m_isRead) return m_own;
  m_isRead = true;
  m_all.reserve(kUsualTags);
  DxfTagReader reader(m_text);
  for (DxfTag tag; reader.next(tag) && tag.code < kExtendedData;) m_all.push_back(tag);
  const DxfTags inside = DxfTags(m_all).first(endOfOwn(m_all));
  return m_own = inside.subspan(beginOfOwn(inside));
}

const DxfTag* EntityTags::find(int code) const {
  for (const DxfTag& tag : own())
    if (tag.code == code) return &tag;
  return nullptr;
}

double EntityTags::real(int code, double fallback) const {
  const DxfTag* tag = find(code);
  return tag ? RealOf(*tag, fallback) : fallback;
}

long long EntityTags::integer(int code, long long fallback) const {
  const DxfTag* tag = find(code);
  return tag ? IntegerOf(*tag, fallback) : fallback;
}

double EntityTags::radians(int code, double fallbackDegrees) const {
  return real(code, fallbackDegrees) * std::numbers::pi / 180;
}

CString EntityTags::text(int code) const {
  const DxfTag* tag = find(code);
  return tag ? dxf::decodeText(tag->value) : CString();
}

AcGePoint3d EntityTags::point(int code) const {
  return optionalPoint(code).value_or(AcGePoint3d());
}

std::optional<AcGePoint3d> EntityTags::optionalPoint(int code) const {
  std::optional<AcGePoint3d> found;
  int seen = 0;
  for (const DxfTag& tag : own()) {
    if (tag.code != code && tag.code != code + 10 && tag.code != code + 20) continue;
    if (tag.code == code && ++seen == 2) break;
    if (!found) found.emplace();
    ReadCoordinate(tag, code, *found);
  }
  return found;
}

AcGeVector3d EntityTags::normal() const {
  const auto read = optionalPoint(210);
  const AcGeVector3d v = read ? read->asVector() : AcGeVector3d(0, 0, 1);
  return v.isZeroLength() ? AcGeVector3d(0, 0, 1) : v.normal();
}

std::vector<AcGePoint3d> EntityTags::points(int code) const {
  std::vector<AcGePoint3d> found;
  for (const DxfTag& tag : own()) {
    if (tag.code == code) found.emplace_back();
    if (!found.empty()) ReadCoordinate(tag, code, found.back());
  }
  return found;
}

} // namespace scene
