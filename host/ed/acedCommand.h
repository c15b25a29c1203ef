// Runs a host command inside the running one, its prompts answered by the arguments.
#pragma once

#include "host/afx/Numbers.h"
#include "host/db/resbuf.h"
#include "host/ed/EdSession.h"

#include <deque>

// The name, then an answer for each prompt; an empty answer is Enter. A prompt that finds no answer is
// cancelled. RTNORM; RTCAN for a command that was cancelled; RTERROR for one that failed or is unknown.
int acedCommandTexts(const std::deque<CString>& nameAndAnswers, bool echo = true);

namespace ed {

CString PointText(const ads_real* point);

inline void CollectAnswers(std::deque<CString>&) {}
inline void CollectAnswers(std::deque<CString>&, int) {}
template <class Value, class... Rest>
void CollectAnswers(std::deque<CString>& answers, int type, const Value& value, const Rest&... rest) {
  if (type == RTNONE) return;
  CString text;
  if constexpr (std::is_convertible_v<const Value&, const ads_real*>) {
    text = PointText(value);
  } else if constexpr (std::is_same_v<Value, double>) {
    text = CString::FromUtf8(afx::ShortestDouble(value));
  } else if constexpr (std::is_integral_v<Value>) {
    text.Format(L"%d", value);
  } else {
    text = value;
  }
  answers.push_back(text);
  CollectAnswers(answers, rest...);
}

} // namespace ed

// acedCommandS(RTSTR, L"LINE", RT3DPOINT, point, RTSTR, L"10,0", RTSTR, L"", RTNONE)
template <class... Arguments> int acedCommandS(int type, const Arguments&... rest) {
  std::deque<CString> answers;
  ed::CollectAnswers(answers, type, rest...);
  return acedCommandTexts(answers);
}
template <class... Arguments> int acedCommand(int type, const Arguments&... rest) {
  return acedCommandS(type, rest...);
}
