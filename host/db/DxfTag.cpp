#include "host/db/DxfTag.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace dxf {

ValueKind valueKind(int c) {
  if (c == 5 || c == 105 || (c >= 320 && c < 370) || (c >= 390 && c < 400) || c == 480 || c == 481 ||
      c == 1005)
    return ValueKind::handle;
  if ((c >= 10 && c < 60) || (c >= 110 && c < 150) || (c >= 210 && c < 240) || (c >= 460 && c < 470) ||
      (c >= 1010 && c < 1060))
    return ValueKind::real;
  if ((c >= 310 && c < 320) || c == 1004) return ValueKind::binary;
  if (c >= 290 && c < 300) return ValueKind::boolean;
  if ((c >= 60 && c < 100) || (c >= 160 && c < 180) || (c >= 270 && c < 290) || (c >= 370 && c < 390) ||
      (c >= 400 && c < 410) || (c >= 420 && c < 430) || (c >= 440 && c < 460) || (c >= 1060 && c < 1072))
    return ValueKind::integer;
  return ValueKind::text;
}

std::string_view trimBlanks(std::string_view v) {
  while (!v.empty() && (v.front() == ' ' || v.front() == '\t')) v.remove_prefix(1);
  while (!v.empty() && (v.back() == ' ' || v.back() == '\t')) v.remove_suffix(1);
  return v;
}

std::optional<double> toReal(std::string_view value) {
  std::string_view v = trimBlanks(value);
  if (!v.empty() && v.front() == '+') v.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(v.data(), v.data() + v.size(), number);
  if (error != std::errc{} || end != v.data() + v.size() || !std::isfinite(number)) {
    // Underflow is a legal way to write a very small number; overflow is not a number we can hold.
    if (error == std::errc::result_out_of_range && v.find("e-") != v.npos) return 0.0;
    if (error == std::errc::result_out_of_range && v.find("E-") != v.npos) return 0.0;
    return std::nullopt;
  }
  return number;
}

std::optional<long long> toInteger(std::string_view value) {
  std::string_view v = trimBlanks(value);
  if (!v.empty() && v.front() == '+') v.remove_prefix(1);
  long long number = 0;
  const auto [end, error] = std::from_chars(v.data(), v.data() + v.size(), number);
  if (error != std::errc{} || end == v.data()) return std::nullopt;
  if (end != v.data() + v.size()) { // some programs write integers as "1.0"
    const auto real = toReal(v);
    if (!real || *real != std::trunc(*real) || std::fabs(*real) > 9e15) return std::nullopt;
    return static_cast<long long>(*real);
  }
  return number;
}

} // namespace dxf

bool DxfTagReader::next(DxfTag& tag) {
  const auto line = [this](std::string_view& out) {
    const auto* end = static_cast<const char*>(std::memchr(m_rest.data(), '\n', m_rest.size()));
    const std::size_t length = end ? static_cast<std::size_t>(end - m_rest.data()) : m_rest.size();
    out = m_rest.substr(0, length);
    m_rest.remove_prefix(end ? length + 1 : length);
  };
  if (m_rest.empty()) return false;
  std::string_view code;
  line(code);
  line(tag.value);
  const char* first = code.data();
  const char* last = first + code.size();
  while (first < last && (*first == ' ' || *first == '\t')) ++first;
  return std::from_chars(first, last, tag.code).ec == std::errc{};
}

std::vector<DxfTag> dxfTagsOf(std::string_view recordText) {
  constexpr std::size_t kUsualTagBytes = 10;
  std::vector<DxfTag> tags;
  tags.reserve(recordText.size() / kUsualTagBytes + 1);
  DxfTagReader reader(recordText);
  for (DxfTag tag; reader.next(tag);) tags.push_back(tag);
  return tags;
}

std::vector<DxfTag> dxfOwnTags(DxfTags tags) {
  std::vector<DxfTag> own;
  own.reserve(tags.size());
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code >= 1000 || tag.code == 101) break;
    if (tag.code == 102) {
      inGroup = !tag.value.empty() && tag.value.front() == '{';
      continue;
    }
    if (!inGroup && tag.code != 999) own.push_back(tag);
  }
  return own;
}

DxfTags dxfCommonTags(DxfTags ownTags) {
  int markers = 0;
  for (std::size_t i = 0; i < ownTags.size(); ++i)
    if (ownTags[i].code == 100 && ++markers == 2) return ownTags.first(i);
  return ownTags;
}
