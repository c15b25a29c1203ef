// Base of the prompt objects: message, keywords and flags go in, a status and the answer come out.
#pragma once

#include "host/ed/EdPrompts.h"

class ArxDbgUiPrBase {
 public:
  enum Status { kOk, kNone, kKeyWord, kCancel };

  // keywords and flags as acedInitGet takes them; keywords may be null.
  explicit ArxDbgUiPrBase(const wchar_t* message, const wchar_t* keywords = nullptr, int initGetFlags = 0);
  virtual ~ArxDbgUiPrBase() = default;

  // Asks. kNone is Enter, kCancel Escape.
  virtual Status go() = 0;

  void setMessage(const wchar_t* message) { m_question.prompt = message; }
  void setKeyWords(const wchar_t* keywords) { m_question.keywords = keywords; }
  void setInitGetFlags(int flags) { m_question.flags = flags; }
  // Enter is no answer unless it is allowed; it is by default.
  void setAllowNone(bool allow);
  const CString& keyWordPicked() const { return m_keyWord; }
  bool isKeyWordPicked(const wchar_t* word) const { return m_keyWord.CompareNoCase(word) == 0; }

 protected:
  const ed::Question& question() const { return m_question; }
  ed::Question& question() { return m_question; }
  Status finish(const ed::Answer& answer);

 private:
  ed::Question m_question;
  CString m_keyWord;
};
