#include "host/ed/EdLineParser.h"

#include "host/afx/LetterCase.h"
#include "host/afx/Numbers.h"

#include <cmath>
#include <numbers>

namespace ed {
namespace {

CString trimmed(const CString& text) {
  return CString(text).Trim();
}

bool sameText(const CString& a, std::wstring_view b) {
  return afx::CompareNoCase(a.View(), b) == 0;
}

// The parts of a coordinate list, or nothing when one of them is no number or there are too many.
std::optional<std::vector<double>> parseNumbers(const CString& text) {
  std::vector<double> numbers;
  int begin = 0;
  while (true) {
    const int comma = text.Find(L',', begin);
    const auto number = ParseReal(comma < 0 ? text.Mid(begin) : text.Mid(begin, comma - begin));
    if (!number || numbers.size() == 3) return std::nullopt;
    numbers.push_back(*number);
    if (comma < 0) return numbers;
    begin = comma + 1;
  }
}

std::optional<AcGeVector3d> parsePolar(const CString& text) {
  const int mark = text.Find(L'<');
  if (mark < 0) return std::nullopt;
  const auto distance = ParseReal(text.Left(mark));
  const auto degrees = ParseReal(text.Mid(mark + 1));
  if (!distance || !degrees) return std::nullopt;
  const double angle = *degrees * std::numbers::pi / 180.0;
  return AcGeVector3d(*distance * std::cos(angle), *distance * std::sin(angle), 0);
}

bool isFinite(const AcGePoint3d& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

std::vector<CString> words(const CString& line) {
  std::vector<CString> result;
  int at = 0;
  for (CString word = line.Tokenize(L" \t", at); at != -1; word = line.Tokenize(L" \t", at))
    result.push_back(word);
  return result;
}

// What stands behind a verb and a blank; nothing for a line with another verb.
std::optional<CString> Behind(std::wstring_view verb, const CString& line) {
  const CString text = trimmed(line);
  if (!sameText(text.Left(static_cast<int>(verb.size())), verb)) return std::nullopt;
  const CString rest = text.Mid(static_cast<int>(verb.size()));
  if (rest.IsEmpty() || (rest[0] != L' ' && rest[0] != L'\t')) return std::nullopt;
  return trimmed(rest);
}

struct SelectionWord {
  const wchar_t* word;
  const wchar_t* brief;
  SelectionLine::Kind kind;
};
constexpr SelectionWord kSelectionWords[] = {
    {L"all", L"all", SelectionLine::Kind::all},         {L"window", L"w", SelectionLine::Kind::window},
    {L"crossing", L"c", SelectionLine::Kind::crossing}, {L"last", L"l", SelectionLine::Kind::last},
    {L"previous", L"p", SelectionLine::Kind::previous},
};

constexpr struct {
  const wchar_t* english;
  const wchar_t* caption;
} kEnglishButtons[] = {{L"OK", L"确定"}, {L"Cancel", L"取消"}, {L"Yes", L"是"}, {L"No", L"否"}};

} // namespace

bool IsCancelLine(const CString& line) {
  return sameText(trimmed(line), L"*cancel*");
}

std::optional<double> ParseReal(const CString& line) {
  const CString text = trimmed(line);
  if (text.IsEmpty()) return std::nullopt;
  const wchar_t* end = nullptr;
  const double value = afx::wcstod(text, &end);
  if (end != text.GetString() + text.GetLength() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<long> ParseInteger(const CString& line) {
  const CString text = trimmed(line);
  const auto value = ParseReal(text);
  if (!value || text.FindOneOf(L".eE") >= 0 || std::fabs(*value) > 2147483647.0) return std::nullopt;
  return static_cast<long>(*value);
}

std::optional<AcGePoint3d> ParsePoint(const CString& line, const AcGePoint3d& lastPoint) {
  CString text = trimmed(line);
  const bool relative = text.View().starts_with(L'@');
  if (relative) text = text.Mid(1);
  const AcGePoint3d from = relative ? lastPoint : AcGePoint3d();
  if (relative && text.IsEmpty()) return lastPoint;
  AcGePoint3d point;
  if (const auto offset = parsePolar(text)) {
    point = from + *offset;
  } else {
    const auto numbers = parseNumbers(text);
    if (!numbers || numbers->size() < 2) return std::nullopt;
    point = from + AcGeVector3d((*numbers)[0], (*numbers)[1], numbers->size() > 2 ? (*numbers)[2] : 0.0);
  }
  if (!isFinite(point)) return std::nullopt;
  return point;
}

std::optional<AcGePoint3d> ParseDrag(const CString& line, const AcGePoint3d& lastPoint) {
  const auto rest = Behind(L"drag", line);
  return rest ? ParsePoint(*rest, lastPoint) : std::nullopt;
}

std::optional<AcDbHandle> ParseHandle(const CString& line) {
  const CString text = trimmed(line);
  if (!text.View().starts_with(L'#')) return std::nullopt;
  const auto handle = AcDbHandle::fromHex(text.Mid(1).ToUtf8());
  if (handle.isNull()) return std::nullopt;
  return handle;
}

std::optional<CString> ParseAnswer(const CString& line) {
  return Behind(L"answer", line);
}

std::optional<std::size_t> FindButton(const std::vector<CString>& buttons, const CString& answer) {
  for (const auto& row : kEnglishButtons)
    if (sameText(answer, row.english)) return FindButton(buttons, row.caption);
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    const CString& caption = buttons[i];
    const int open = caption.ReverseFind(L'(');
    const bool hasLetter = open > 0 && caption.View().ends_with(L')');
    const CString plain = hasLetter ? caption.Left(open) : caption;
    const CString letter = hasLetter ? caption.Mid(open + 1, caption.GetLength() - open - 2) : CString();
    if (sameText(answer, caption.View()) || sameText(answer, plain.View()) ||
        (hasLetter && sameText(answer, letter.View())))
      return i;
  }
  return std::nullopt;
}

std::optional<SelectionLine> ParseSelection(const CString& line, const AcGePoint3d& lastPoint) {
  using Kind = SelectionLine::Kind;
  SelectionLine result;
  const auto parts = words(line);
  if (parts.empty()) return result;
  CString first = parts[0];
  if (first.View().starts_with(L'_') && first.GetLength() > 1) first = first.Mid(1);
  for (const auto& row : kSelectionWords) {
    if (!sameText(first, row.word) && !sameText(first, row.brief)) continue;
    result.kind = row.kind;
    const bool hasCorners = row.kind == Kind::window || row.kind == Kind::crossing;
    if (parts.size() == 1) return result;
    if (!hasCorners || parts.size() != 3) return std::nullopt;
    const auto corner = ParsePoint(parts[1], lastPoint);
    const auto opposite = corner ? ParsePoint(parts[2], *corner) : std::nullopt;
    if (!opposite) return std::nullopt;
    result.first = *corner;
    result.second = *opposite;
    result.corners = true;
    return result;
  }
  if (const auto handle = ParseHandle(line)) {
    result.kind = Kind::handle;
    result.handle = *handle;
    return result;
  }
  if (const auto point = ParsePoint(line, lastPoint)) {
    result.kind = Kind::point;
    result.first = *point;
    return result;
  }
  return std::nullopt;
}

CString CommandName(const CString& line) {
  CString name = trimmed(line);
  name.TrimLeft(L"'_.");
  return name.MakeUpper();
}

CString Excerpt(const CString& text) {
  constexpr std::size_t longest = 60;
  std::wstring shown(text.View().substr(0, longest));
  for (wchar_t& c : shown)
    if (c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0xD800 && c < 0xE000)) c = L'\xFFFD';
  if (text.View().size() > longest) shown += L"…";
  return CString(shown);
}

} // namespace ed
