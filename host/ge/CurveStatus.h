// What an operation on a curve returns: a status, and the value that only kOk makes meaningful.
#pragma once

namespace ge {

enum class CurveStatus {
  kOk,
  kNotFinite,     // a number is not finite, or beyond the largest that the curves compute with
  kDegenerate,    // the geometry does not determine a result: no length, three points on a line, no vertex
  kOutOfRange,    // a parameter or distance beyond the ends of the curve, or nothing would be left of it
  kNotOnCurve,    // the point is not on the curve, nor on its extension where that counts
  kNotApplicable, // this kind of curve has no such thing, as a circle has no end to move
  kNotUniform,    // the transformation would turn a circle into an ellipse
};

template <class T> struct [[nodiscard]] CurveResult {
  CurveStatus status = CurveStatus::kOk;
  T value{};

  CurveResult(CurveStatus failure) : status(failure) {}
  CurveResult(T result) : value(static_cast<T&&>(result)) {}
  explicit operator bool() const { return status == CurveStatus::kOk; }
};

} // namespace ge
