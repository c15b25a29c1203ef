// What the acquire functions make of the latest move or answer.
#include "host/ed/AcEdJig.h"

#include "host/ed/AcApDocManager.h"
#include "host/ed/EdLineParser.h"

#include <cmath>
#include <numbers>

AcGePoint3d AcEdJig::lastPoint() {
  const auto* document = curDoc();
  return document ? document->edit().lastPoint : AcGePoint3d();
}

void AcEdJig::refuse(const CString& problem, const wchar_t* expected) {
  m_sample.problem = problem;
  m_sample.expected = expected;
  if (!m_keywords.isEmpty()) m_sample.expected += L"，或关键字 " + m_keywords.text();
  if (m_controls & kNullResponseAccepted) m_sample.expected += L"，或空行（回车）";
  m_sample.expected += L"，或 *cancel*（取消）";
}

namespace {

double DirectionOf(const AcGePoint3d& from, const AcGePoint3d& to) {
  const double angle = std::atan2(to.y - from.y, to.x - from.x);
  return angle < 0 ? angle + 2 * std::numbers::pi : angle;
}

double InOneTurn(double radians) {
  const double rest = std::fmod(radians, 2 * std::numbers::pi);
  return rest < 0 ? rest + 2 * std::numbers::pi : rest;
}

constexpr const wchar_t* kExpected[] = {L"点 x,y 或 x,y,z 或 @dx,dy", L"距离或点", L"角度（度）或点",
                                        L"文字"};

} // namespace

AcEdJig::DragStatus AcEdJig::acquireLine(Quantity quantity, const AcGePoint3d& from, Acquired& result) {
  const CString text = CString(m_sample.line).Trim();
  const auto* expected = kExpected[static_cast<int>(quantity)];
  if (ed::IsCancelLine(text)) return kCancel;
  if (text.IsEmpty()) {
    if (m_controls & kNullResponseAccepted) return kNull;
    refuse(L"这里不能是空行。", expected);
    return kNoChange;
  }
  if (const auto index = m_keywords.matchIndex(text)) return static_cast<DragStatus>(kKW1 + *index);
  if (quantity == Quantity::text) return kNormal;
  if (const auto point = ed::ParsePoint(text, from)) {
    result.point = *point;
    if (!(m_controls & kAccept3dCoordinates)) result.point.z = from.z;
    result.number =
        quantity == Quantity::angle ? DirectionOf(from, result.point) : (result.point - from).length();
  } else if (const auto number = ed::ParseReal(text); number && quantity != Quantity::point) {
    result.number = quantity == Quantity::angle ? InOneTurn(*number * std::numbers::pi / 180) : *number;
  } else if (m_controls & kAcceptOtherInputString) {
    m_otherText = text;
    return kOther;
  } else {
    refuse(L"“" + ed::Excerpt(text) + L"”不是" + expected + L"。", expected);
    return kNoChange;
  }
  if (quantity != Quantity::point) {
    const bool zero = (m_controls & kNoZeroResponseAccepted) && result.number == 0;
    const bool negative = (m_controls & kNoNegativeResponseAccepted) && result.number < 0;
    if (zero || negative) {
      refuse(zero ? L"不能为零。" : L"不能为负数。", expected);
      return kNoChange;
    }
  }
  return kNormal;
}

AcEdJig::DragStatus AcEdJig::acquire(Quantity quantity, const std::optional<AcGePoint3d>& base,
                                     Acquired& result) {
  m_base = base;
  const AcGePoint3d last = lastPoint();
  const AcGePoint3d from = base.value_or(last);
  if (m_sample.moved) {
    if (quantity == Quantity::text) return kNoChange;
    result.point = *m_sample.moved;
    result.number =
        quantity == Quantity::angle ? DirectionOf(from, result.point) : (result.point - from).length();
    return kNormal;
  }
  // A pick counts from the last point, as at any other prompt; distances and angles from the base.
  const auto status = acquireLine(quantity, quantity == Quantity::point ? last : from, result);
  if (status == kNormal && quantity == Quantity::point && curDoc()) curDoc()->edit().lastPoint = result.point;
  return status;
}

AcEdJig::DragStatus AcEdJig::acquireNumber(Quantity quantity, const std::optional<AcGePoint3d>& base,
                                           double& value) {
  Acquired result;
  const auto status = acquire(quantity, base, result);
  if (status == kNormal) value = result.number;
  return status;
}

AcEdJig::DragStatus AcEdJig::acquirePoint(AcGePoint3d& value) {
  Acquired result;
  const auto status = acquire(Quantity::point, std::nullopt, result);
  if (status == kNormal) value = result.point;
  return status;
}

AcEdJig::DragStatus AcEdJig::acquirePoint(AcGePoint3d& value, const AcGePoint3d& base) {
  Acquired result;
  const auto status = acquire(Quantity::point, base, result);
  if (status == kNormal) value = result.point;
  return status;
}

AcEdJig::DragStatus AcEdJig::acquireDist(double& value) {
  return acquireNumber(Quantity::distance, std::nullopt, value);
}

AcEdJig::DragStatus AcEdJig::acquireDist(double& value, const AcGePoint3d& base) {
  return acquireNumber(Quantity::distance, base, value);
}

AcEdJig::DragStatus AcEdJig::acquireAngle(double& value) {
  return acquireNumber(Quantity::angle, std::nullopt, value);
}

AcEdJig::DragStatus AcEdJig::acquireAngle(double& value, const AcGePoint3d& base) {
  return acquireNumber(Quantity::angle, base, value);
}

AcEdJig::DragStatus AcEdJig::acquireString(CString& value) {
  Acquired result;
  const auto status = acquire(Quantity::text, std::nullopt, result);
  if (status == kNormal) value = m_sample.line;
  return status;
}
