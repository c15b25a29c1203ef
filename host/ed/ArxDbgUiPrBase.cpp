#include "host/ed/ArxDbgUiPrBase.h"

ArxDbgUiPrBase::ArxDbgUiPrBase(const wchar_t* message, const wchar_t* keywords, int initGetFlags) {
  m_question.prompt = message;
  m_question.keywords = keywords;
  m_question.flags = initGetFlags;
}

void ArxDbgUiPrBase::setAllowNone(bool allow) {
  m_question.flags = allow ? m_question.flags & ~RSG_NONULL : m_question.flags | RSG_NONULL;
}

ArxDbgUiPrBase::Status ArxDbgUiPrBase::finish(const ed::Answer& answer) {
  m_keyWord.Empty();
  switch (answer.status) {
  case ed::Answer::Status::value:
    return kOk;
  case ed::Answer::Status::keyword:
    m_keyWord = answer.text;
    return kKeyWord;
  case ed::Answer::Status::none:
    return kNone;
  default:
    return kCancel;
  }
}
