#include "host/ed/SelectionFilter.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/DxfText.h"
#include "host/db/resbuf.h"
#include "host/ed/WildcardMatch.h"

#include <algorithm>
#include <cmath>
#include <optional>

struct SelectionFilter::Test {
  enum class Kind { all, any, one, none, value, application };
  Kind kind = Kind::all;
  std::vector<Test> parts;
  int code = 0;
  CString text;
  CString relation = L"=";
  double number = 0;
  bool isText = false;
};

namespace {

struct Operator {
  const wchar_t* open;
  const wchar_t* close;
};
constexpr Operator kOperators[] = {
    {L"<and", L"and>"}, {L"<or", L"or>"}, {L"<xor", L"xor>"}, {L"<not", L"not>"}};

// Where a buffer of the group code keeps a number, as in resbuf's union.
double numberOf(const resbuf& buffer) {
  switch (dxf::valueKind(buffer.restype)) {
  case dxf::ValueKind::real:
    return buffer.resval.rreal;
  case dxf::ValueKind::integer:
    if (buffer.restype >= 160 && buffer.restype < 170) return static_cast<double>(buffer.resval.mnInt64);
    if ((buffer.restype >= 90 && buffer.restype < 100) || (buffer.restype >= 420 && buffer.restype < 460))
      return buffer.resval.rlong;
    return buffer.resval.rint;
  default:
    return buffer.resval.rint;
  }
}

// The properties that an entity has also when its record doesn't spell them out.
std::optional<CString> textOf(const AcDbEntity& entity, int code) {
  switch (code) {
  case 0:
    return entity.dxfName();
  case 8:
    return entity.layer();
  case 6:
    return entity.linetype();
  case 5:
    return entity.handle().ascii();
  case 2:
    if (const auto* insert = AcDbBlockReference::cast(&entity)) {
      const auto* block = AcDbSymbolTableRecord::cast(insert->blockTableRecord().object());
      return block ? block->name() : CString();
    }
    break;
  default:
    break;
  }
  for (const auto& tag : dxfOwnTags(entity.record().tags()))
    if (tag.code == code) return dxf::decodeText(tag.value);
  return std::nullopt;
}

std::optional<double> numberOf(const AcDbEntity& entity, int code) {
  switch (code) {
  case 62:
    return entity.colorIndex();
  case 370:
    return entity.lineWeight();
  case 48:
    return entity.linetypeScale();
  case 60:
    return entity.visibility();
  case 67:
    return entity.isInPaperSpace() ? 1 : 0;
  default:
    break;
  }
  for (const auto& tag : dxfOwnTags(entity.record().tags()))
    if (tag.code == code) return dxf::toReal(tag.value);
  return std::nullopt;
}

bool related(double a, const CString& relation, double b) {
  constexpr double same = 1e-9;
  const double tolerance = same * std::max({1.0, std::fabs(a), std::fabs(b)});
  const bool equal = std::fabs(a - b) <= tolerance;
  if (relation == L"*") return true;
  if (relation == L"=") return equal;
  if (relation == L"!=" || relation == L"/=" || relation == L"<>") return !equal;
  if (relation == L"<") return a < b && !equal;
  if (relation == L"<=") return a < b || equal;
  if (relation == L">") return a > b && !equal;
  if (relation == L">=") return a > b || equal;
  if (relation == L"&") return (static_cast<long long>(a) & static_cast<long long>(b)) != 0;
  if (relation == L"&=")
    return (static_cast<long long>(a) & static_cast<long long>(b)) == static_cast<long long>(b);
  return false;
}

bool isRelation(const CString& text) {
  constexpr const wchar_t* relations[] = {L"*",  L"=", L"!=", L"/=", L"<>", L"<",
                                          L"<=", L">", L">=", L"&",  L"&="};
  return std::any_of(std::begin(relations), std::end(relations), [&](auto* r) { return text == r; });
}

} // namespace

SelectionFilter::SelectionFilter(const resbuf* chain) : m_root(std::make_unique<Test>()) {
  if (const auto* rest = parseGroup(chain, *m_root, nullptr); rest) m_valid = false;
}

SelectionFilter::~SelectionFilter() = default;
SelectionFilter::SelectionFilter(SelectionFilter&&) noexcept = default;

// Parses up to the closing operator, or to the end where there is none. Gives what follows it.
const resbuf* SelectionFilter::parseGroup(const resbuf* at, Test& group, const wchar_t* closing) {
  CString relation = L"=";
  bool applications = false;
  while (at && m_valid) {
    const resbuf& buffer = *at;
    at = at->rbnext;
    if (buffer.restype == -4) {
      const CString name = buffer.resval.rstring;
      applications = false;
      if (closing && name.CompareNoCase(closing) == 0) return at;
      const auto* op = std::find_if(std::begin(kOperators), std::end(kOperators),
                                    [&](const Operator& o) { return name.CompareNoCase(o.open) == 0; });
      if (op != std::end(kOperators)) {
        Test inner;
        inner.kind = static_cast<Test::Kind>(op - std::begin(kOperators));
        at = parseGroup(at, inner, op->close);
        group.parts.push_back(std::move(inner));
      } else if (isRelation(name)) {
        relation = name;
      } else {
        m_valid = false;
      }
      continue;
    }
    if (buffer.restype == -3) {
      applications = true;
      continue;
    }
    Test test;
    test.kind = applications && buffer.restype == 1001 ? Test::Kind::application : Test::Kind::value;
    test.code = buffer.restype;
    test.relation = relation;
    test.isText = dxf::valueKind(buffer.restype) == dxf::ValueKind::text ||
                  dxf::valueKind(buffer.restype) == dxf::ValueKind::handle || buffer.restype == 1001;
    if (test.isText)
      test.text = buffer.resval.rstring;
    else
      test.number = numberOf(buffer);
    relation = L"=";
    group.parts.push_back(std::move(test));
  }
  if (closing) m_valid = false; // the group's end is missing
  return nullptr;
}

bool SelectionFilter::takes(const AcDbEntity& entity) const {
  return m_valid && holds(*m_root, entity);
}

bool SelectionFilter::holds(const Test& test, const AcDbEntity& entity) {
  const auto holding = [&] {
    return std::count_if(test.parts.begin(), test.parts.end(),
                         [&](const Test& part) { return holds(part, entity); });
  };
  switch (test.kind) {
  case Test::Kind::all:
    return std::all_of(test.parts.begin(), test.parts.end(),
                       [&](const Test& part) { return holds(part, entity); });
  case Test::Kind::any:
    return std::any_of(test.parts.begin(), test.parts.end(),
                       [&](const Test& part) { return holds(part, entity); });
  case Test::Kind::one:
    return holding() == 1;
  case Test::Kind::none:
    return holding() == 0;
  case Test::Kind::application: {
    for (const auto& tag : entity.record().tags())
      if (tag.code == 1001 && ed::MatchesPattern(dxf::decodeText(tag.value).View(), test.text.View(), true))
        return true;
    return false;
  }
  case Test::Kind::value:
    break;
  }
  if (test.isText) {
    const auto text = textOf(entity, test.code);
    return text && ed::MatchesPattern(text->View(), test.text.View(), true);
  }
  const auto number = numberOf(entity, test.code);
  return number && related(*number, test.relation, test.number);
}
