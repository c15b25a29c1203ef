#include "host/ed/EdPrompts.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"

#include <cmath>
#include <functional>
#include <numbers>

namespace ed {
namespace {

using Status = Answer::Status;
using Wants = EdPromptState::Wants;

// Takes a line that is neither Enter, Escape nor a keyword into the answer; gives why it can't.
using Reader = std::function<std::optional<CString>(const CString& line, Answer& answer)>;

AcGePoint3d lastPoint(const Question& question) {
  if (question.base) return *question.base;
  const auto* document = curDoc();
  return document ? document->edit().lastPoint : AcGePoint3d();
}

CString promptText(const CString& prompt) {
  CString text = prompt;
  return text.TrimLeft(L"\n");
}

CString expectation(const wchar_t* form, const EdKeywords& keywords, int flags) {
  CString text = form;
  if (!keywords.isEmpty()) text += (text.IsEmpty() ? L"关键字 " : L"，或关键字 ") + keywords.text();
  if (!(flags & RSG_NONULL)) text += L"，或空行（回车）";
  return text + L"，或 *cancel*（取消）";
}

Answer ask(const Question& question, Wants wants, const wchar_t* form, const Reader& read,
           bool freeText = false) {
  auto& session = EdSession::instance();
  const auto& keywords = question.keywords;
  AcGePoint3d cursor = lastPoint(question);
  std::optional<EdTransient> preview;
  EdPromptScope asking(session.prompts(),
                       {wants, promptText(question.prompt), keywords, question.base, {}, {}});
  if (question.preview) {
    preview.emplace(session.transients(), [&](AcGiWorldDraw& draw) { question.preview(draw, cursor); });
    asking.state().follow = [&](const AcGePoint3d& world) {
      cursor = world;
      preview->changed();
    };
  }
  Answer answer;
  while (true) {
    const auto line = session.input().read(promptText(question.prompt), freeText);
    if (line && !freeText) {
      if (const auto moved = ParseDrag(line->text, lastPoint(question))) {
        session.prompts().cursorMoved(*moved);
        continue;
      }
    }
    if (!line) PrintInputEnd(question.prompt);
    if (!line || IsCancelLine(line->text)) {
      PrintCancelled();
      answer.status = Status::cancelled;
      session.noteInput(true);
      return answer;
    }
    session.noteInput(false);
    const CString text = freeText ? line->text : CString(line->text).Trim();
    if (text.IsEmpty() && !(question.flags & RSG_NONULL)) return answer;
    if (const auto keyword = keywords.match(text)) {
      answer.status = Status::keyword;
      answer.text = *keyword;
      return answer;
    }
    const auto problem = text.IsEmpty() ? std::optional<CString>(L"这里不能是空行。") : read(text, answer);
    if (!problem) {
      answer.status = Status::value;
      return answer;
    }
    if ((question.flags & RSG_OTHER) && !text.IsEmpty()) {
      answer.status = Status::keyword;
      answer.text = text;
      return answer;
    }
    session.refuse(*problem, expectation(form, keywords, question.flags));
  }
}

std::optional<CString> signProblem(double value, int flags) {
  if ((flags & RSG_NOZERO) && value == 0) return L"不能为零。";
  if ((flags & RSG_NONEG) && value < 0) return L"不能为负数。";
  return std::nullopt;
}

constexpr wchar_t kPointForm[] = L"点 x,y 或 x,y,z 或 @dx,dy";

} // namespace

void PrintInputEnd(const CString& prompt) {
  EdSession::instance().print(L"\n" + promptText(prompt) + L"（输入已结束）\n");
}

void PrintCancelled() {
  EdSession::instance().print(L"\n*取消*\n");
}

namespace {

Answer askPointAs(Wants wants, const Question& question) {
  const auto from = lastPoint(question);
  const auto answer =
      ask(question, wants, kPointForm, [&](const CString& line, Answer& into) -> std::optional<CString> {
        const auto point = ParsePoint(line, from);
        if (!point) return L"“" + Excerpt(line) + L"”不是点。";
        into.point = *point;
        return std::nullopt;
      });
  if (answer.hasValue() && curDoc()) curDoc()->edit().lastPoint = answer.point;
  return answer;
}

} // namespace

Answer AskPoint(const Question& question) {
  return askPointAs(Wants::point, question);
}

Answer AskCorner(const Question& question) {
  return askPointAs(Wants::corner, question);
}

Answer AskReal(const Question& question) {
  return ask(question, Wants::number, L"数值",
             [&](const CString& line, Answer& into) -> std::optional<CString> {
               const auto value = ParseReal(line);
               if (!value) return L"“" + Excerpt(line) + L"”不是数值。";
               into.real = *value;
               return signProblem(*value, question.flags);
             });
}

Answer AskInteger(const Question& question) {
  return ask(question, Wants::number, L"整数",
             [&](const CString& line, Answer& into) -> std::optional<CString> {
               const auto value = ParseInteger(line);
               if (!value) return L"“" + Excerpt(line) + L"”不是整数。";
               into.integer = *value;
               return signProblem(static_cast<double>(*value), question.flags);
             });
}

Answer AskDistance(const Question& question) {
  const auto from = lastPoint(question);
  return ask(question, Wants::distance, L"距离或第二点",
             [&](const CString& line, Answer& into) -> std::optional<CString> {
               if (const auto value = ParseReal(line)) {
                 into.real = *value;
               } else if (const auto point = ParsePoint(line, from)) {
                 into.point = *point;
                 into.isPoint = true;
                 into.real = (*point - from).length();
               } else {
                 return L"“" + Excerpt(line) + L"”不是距离。";
               }
               return signProblem(into.real, question.flags);
             });
}

Answer AskAngle(const Question& question) {
  const auto from = lastPoint(question);
  return ask(question, Wants::distance, L"角度（度）或第二点",
             [&](const CString& line, Answer& into) -> std::optional<CString> {
               if (const auto degrees = ParseReal(line)) {
                 into.real = *degrees * std::numbers::pi / 180;
               } else if (const auto point = ParsePoint(line, from)) {
                 into.point = *point;
                 into.isPoint = true;
                 into.real = std::atan2(point->y - from.y, point->x - from.x);
               } else {
                 return L"“" + Excerpt(line) + L"”不是角度。";
               }
               return std::nullopt;
             });
}

Answer AskText(const Question& question, bool withBlanks) {
  const auto answer = ask(
      question, Wants::text, L"文字",
      [](const CString& line, Answer& into) -> std::optional<CString> {
        into.text = line;
        return std::nullopt;
      },
      withBlanks);
  return answer;
}

Answer AskKeyword(const Question& question) {
  return ask(question, Wants::keyword, L"", [](const CString& line, Answer&) -> std::optional<CString> {
    return L"没有选项“" + Excerpt(line) + L"”。";
  });
}

Answer AskEntity(const Question& question) {
  const auto* document = curDoc();
  if (!document) {
    Answer none;
    none.status = Status::cancelled;
    return none;
  }
  const auto from = lastPoint(question);
  const auto& database = *document->database();
  return ask(question, Wants::entity, L"实体上的点 x,y，或 #句柄",
             [&](const CString& line, Answer& into) -> std::optional<CString> {
               if (const auto handle = ParseHandle(line)) {
                 database.getAcDbObjectId(into.entity, false, *handle);
                 if (const auto* entity = AcDbEntity::cast(into.entity.object());
                     entity && !entity->isErased())
                   return std::nullopt;
                 return L"图形中没有句柄为 " + handle->ascii() + L" 的实体。";
               }
               const auto point = ParsePoint(line, from);
               if (!point) return L"“" + Excerpt(line) + L"”不是点，也不是 #句柄。";
               auto* frontEnd = EdSession::instance().frontEnd();
               into.point = *point;
               into.entity = EntityAt(database, *point, frontEnd ? frontEnd->pickAperture() : std::nullopt);
               if (into.entity.isNull()) return CString(L"该点处没有实体。");
               return std::nullopt;
             });
}

} // namespace ed
