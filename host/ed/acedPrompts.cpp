#include "host/ed/acedPrompts.h"

#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

using ed::Answer;

// Consumes what acedInitGet prepared.
ed::Question question(const wchar_t* prompt, const wchar_t* otherwise, const ads_real* base = nullptr) {
  ed::Question q;
  q.prompt = prompt && *prompt ? prompt : otherwise;
  if (base) q.base = AcGePoint3d(base[0], base[1], base[2]);
  const auto init = EdSession::instance().takeInitGet();
  q.flags = init.flags;
  q.keywords = init.keywords;
  return q;
}

int resultOf(const Answer& answer) {
  EdSession::instance().setLastKeyword(answer.status == Answer::Status::keyword ? answer.text : CString());
  switch (answer.status) {
  case Answer::Status::value:
    return RTNORM;
  case Answer::Status::keyword:
    return RTKWORD;
  case Answer::Status::none:
    return RTNONE;
  default:
    return RTCAN;
  }
}

void copyPoint(const AcGePoint3d& from, ads_real* to) {
  if (!to) return;
  to[0] = from.x;
  to[1] = from.y;
  to[2] = from.z;
}

int copyText(const CString& text, wchar_t* buffer, std::size_t size) {
  if (!buffer || size == 0) return RTERROR;
  const auto count = std::min(text.View().size(), size - 1);
  std::copy_n(text.GetString(), count, buffer);
  buffer[count] = L'\0';
  return count == text.View().size() ? RTNORM : RTERROR;
}

} // namespace

int acedInitGet(int flags, const wchar_t* keywords) {
  EdSession::instance().setInitGet({flags, EdKeywords(keywords)});
  return RTNORM;
}

int acedGetInput(wchar_t* buffer, std::size_t size) {
  return copyText(EdSession::instance().lastKeyword(), buffer, size);
}

int acedGetPoint(const ads_real* base, const wchar_t* prompt, ads_real* result) {
  const auto answer = ed::AskPoint(question(prompt, L"指定点:", base));
  if (answer.hasValue()) copyPoint(answer.point, result);
  return resultOf(answer);
}

int acedGetCorner(const ads_real* base, const wchar_t* prompt, ads_real* result) {
  const auto answer = ed::AskCorner(question(prompt, L"指定对角点:", base));
  if (answer.hasValue()) copyPoint(answer.point, result);
  return resultOf(answer);
}

int acedGetReal(const wchar_t* prompt, ads_real* result) {
  const auto answer = ed::AskReal(question(prompt, L"输入数值:"));
  if (answer.hasValue() && result) *result = answer.real;
  return resultOf(answer);
}

int acedGetInt(const wchar_t* prompt, int* result) {
  const auto answer = ed::AskInteger(question(prompt, L"输入整数:"));
  if (answer.hasValue() && result) *result = static_cast<int>(answer.integer);
  return resultOf(answer);
}

int acedGetDist(const ads_real* base, const wchar_t* prompt, ads_real* result) {
  auto q = question(prompt, L"指定距离:", base);
  auto answer = ed::AskDistance(q);
  // Without a base a point is the first of two.
  if (answer.hasValue() && !base && answer.isPoint) {
    q = {L"指定第二点:", {}, q.flags, answer.point};
    answer = ed::AskDistance(q);
  }
  if (answer.hasValue() && result) *result = answer.real;
  return resultOf(answer);
}

int acedGetAngle(const ads_real* base, const wchar_t* prompt, ads_real* result) {
  const auto answer = ed::AskAngle(question(prompt, L"输入角度:", base));
  constexpr double turn = 2 * std::numbers::pi;
  if (answer.hasValue() && result) {
    const double rest = std::fmod(answer.real, turn);
    *result = rest < 0 ? rest + turn : rest;
  }
  return resultOf(answer);
}

int acedGetString(int withBlanks, const wchar_t* prompt, CString& result) {
  const auto answer = ed::AskText(question(prompt, L"输入文字:"), withBlanks != 0);
  if (answer.isCancelled() || answer.status == Answer::Status::keyword) return resultOf(answer);
  result = answer.text;
  return RTNORM;
}

int acedGetString(int withBlanks, const wchar_t* prompt, wchar_t* result, std::size_t size) {
  CString text;
  const int status = acedGetString(withBlanks, prompt, text);
  return status == RTNORM ? copyText(text, result, size) : status;
}

int acedGetKword(const wchar_t* prompt, CString& result) {
  const auto answer = ed::AskKeyword(question(prompt, L"输入选项:"));
  if (answer.status != Answer::Status::keyword) return resultOf(answer);
  result = answer.text;
  resultOf(answer);
  return RTNORM;
}

int acedGetKword(const wchar_t* prompt, wchar_t* result, std::size_t size) {
  CString word;
  const int status = acedGetKword(prompt, word);
  return status == RTNORM ? copyText(word, result, size) : status;
}

int acedEntSel(const wchar_t* prompt, ads_name entity, ads_real* point) {
  const auto answer = ed::AskEntity(question(prompt, L"选择对象:"));
  if (!answer.hasValue()) return resultOf(answer);
  if (entity) acdbGetAdsName(entity, answer.entity);
  copyPoint(answer.point, point);
  return resultOf(answer);
}

int acedAlert(const wchar_t* text) {
  if (auto* frontEnd = EdSession::instance().frontEnd()) frontEnd->messageBox({L"zpcad", text, {L"确定"}, 0});
  return RTNORM;
}
