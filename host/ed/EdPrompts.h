// Questions at the command line. Each asks until the answer fits, and tells why one doesn't; the aced
// functions and the host's own commands all stand on these.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/ed/EdKeywords.h"
#include "host/ge/AcGePoint3d.h"

#include <functional>
#include <optional>

class AcGiWorldDraw;

// Bits of acedInitGet.
inline constexpr int RSG_NONULL = 0x1; // an empty line is no answer
inline constexpr int RSG_NOZERO = 0x2;
inline constexpr int RSG_NONEG = 0x4;
inline constexpr int RSG_OTHER = 0x80; // any other text is taken as a keyword

namespace ed {

struct Question {
  CString prompt;
  EdKeywords keywords;
  int flags = 0;
  std::optional<AcGePoint3d> base; // relative coordinates count from here instead of the last point
  // What is shown over the drawing while the user moves the cursor to a point; may be empty.
  std::function<void(AcGiWorldDraw&, const AcGePoint3d& cursor)> preview = {};
};

struct Answer {
  enum class Status { value, keyword, none, cancelled };
  Status status = Status::none;
  CString text; // free text; the keyword
  AcGePoint3d point;
  bool isPoint = false; // a distance was answered with a point
  double real = 0;
  long integer = 0;
  AcDbObjectId entity;

  bool hasValue() const { return status == Status::value; }
  bool isKeyword(const wchar_t* word) const { return status == Status::keyword && text == word; }
  bool isNone() const { return status == Status::none; }
  bool isCancelled() const { return status == Status::cancelled; }
};

Answer AskPoint(const Question& question);
// The corner opposite to question.base.
Answer AskCorner(const Question& question);
Answer AskReal(const Question& question);
Answer AskInteger(const Question& question);
// A number, or the distance of a point from the base.
Answer AskDistance(const Question& question);
// An angle in degrees, or the direction of a point from the base; real is in radians, anticlockwise from the
// x axis, as it was typed, not brought into one turn.
Answer AskAngle(const Question& question);
// The whole line, blanks included when they may be part of it; an empty line gives status none.
Answer AskText(const Question& question, bool withBlanks = true);
Answer AskKeyword(const Question& question);
// One entity, by a point on it or by "#HANDLE". The point is the one typed, or the origin.
Answer AskEntity(const Question& question);

// Tells the user that a prompt found no line to answer it.
void PrintInputEnd(const CString& prompt);
// Tells the user that the running command was given up.
void PrintCancelled();

} // namespace ed
