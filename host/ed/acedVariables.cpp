#include "host/ed/acedVariables.h"

#include "host/ed/SystemVariables.h"

#include <limits>
#include <optional>

namespace {

using Value = SystemVariables::Value;
using Result = SystemVariables::Result;

std::optional<Value> valueOf(const resbuf& buffer) {
  switch (buffer.restype) {
  case RTSHORT:
    return static_cast<long>(buffer.resval.rint);
  case RTLONG:
    return static_cast<long>(buffer.resval.rlong);
  case RTREAL:
    return buffer.resval.rreal;
  case RTSTR:
    return CString(buffer.resval.rstring);
  case RTPOINT:
    return AcGePoint3d(buffer.resval.rpoint[0], buffer.resval.rpoint[1], 0);
  case RT3DPOINT:
    return AcGePoint3d(buffer.resval.rpoint[0], buffer.resval.rpoint[1], buffer.resval.rpoint[2]);
  default:
    return std::nullopt;
  }
}

} // namespace

int acedGetVar(const wchar_t* name, resbuf* result) {
  Value value;
  if (!result || SystemVariables::get(name, value) != Result::ok) return RTERROR;
  result->rbnext = nullptr;
  if (const auto* integer = std::get_if<long>(&value)) {
    const bool isShort =
        *integer >= std::numeric_limits<short>::min() && *integer <= std::numeric_limits<short>::max();
    result->restype = isShort ? RTSHORT : RTLONG;
    if (isShort)
      result->resval.rint = static_cast<short>(*integer);
    else
      result->resval.rlong = static_cast<std::int32_t>(*integer);
  } else if (const auto* real = std::get_if<double>(&value)) {
    result->restype = RTREAL;
    result->resval.rreal = *real;
  } else if (const auto* text = std::get_if<CString>(&value)) {
    result->restype = RTSTR;
    result->resval.rstring = acutNewString(*text);
  } else {
    const auto& point = std::get<AcGePoint3d>(value);
    result->restype = RT3DPOINT;
    for (unsigned i = 0; i < 3; ++i) result->resval.rpoint[i] = point[i];
  }
  return RTNORM;
}

int acedSetVar(const wchar_t* name, const resbuf* buffer) {
  if (!buffer) return RTREJ;
  const auto value = valueOf(*buffer);
  if (!value) return RTREJ;
  switch (SystemVariables::set(name, *value)) {
  case Result::ok:
    return RTNORM;
  case Result::unknown:
  case Result::noDocument:
    return RTERROR;
  default:
    return RTREJ;
  }
}

int acutDelString(wchar_t*& text) {
  delete[] text;
  text = nullptr;
  return RTNORM;
}
