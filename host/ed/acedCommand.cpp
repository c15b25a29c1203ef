#include "host/ed/acedCommand.h"

#include "host/ed/EdLineParser.h"

namespace ed {

CString PointText(const ads_real* point) {
  CString text;
  for (int i = 0; i < 3; ++i) {
    if (i > 0) text += L',';
    text += CString::FromUtf8(afx::ShortestDouble(point[i]));
  }
  return text;
}

} // namespace ed

int acedCommandTexts(const std::deque<CString>& nameAndAnswers, bool echo) {
  if (nameAndAnswers.empty()) return RTERROR;
  auto answers = nameAndAnswers;
  const CString name = ed::CommandName(answers.front());
  answers.pop_front();
  auto& session = EdSession::instance();
  const auto depth = session.input().depth();
  session.input().push(std::make_unique<EdAnswerSource>(std::move(answers), echo));
  const auto outcome = session.runCommand(name);
  session.input().popTo(depth);
  switch (outcome) {
  case EdSession::Outcome::done:
    return RTNORM;
  case EdSession::Outcome::cancelled:
    return RTCAN;
  default:
    return RTERROR;
  }
}
