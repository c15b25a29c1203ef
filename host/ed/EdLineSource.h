// Where answered lines come from when nobody types them: scripts, strings sent by plug-ins, arguments of a
// command that another command calls.
#pragma once

#include "host/afx/CString.h"

#include <deque>
#include <optional>
#include <string>

// Lines beyond this many bytes are refused; no answer is that long.
inline constexpr std::size_t kEdLineLimit = 64 * 1024;

class EdLineSource {
 public:
  virtual ~EdLineSource() = default;
  // The next line without its end; nothing behind the last one. tooLong is set for a line over the limit,
  // whose text is then cut.
  virtual std::optional<CString> next(bool& tooLong) = 0;
  virtual bool atEnd() const = 0;
  // For messages; empty for a source without a name.
  virtual CString name() const { return {}; }
  virtual bool echo() const { return true; }
  // Whether prompts go on with the source below at the end of this one; otherwise they are cancelled there.
  virtual bool fallsThrough() const { return true; }
  // Lines of a script have numbers, and a script stops at a line that can't be obeyed.
  virtual bool isScript() const { return false; }
  // Leaves out all further lines.
  virtual void abandon() = 0;
};

// The lines of a script, which is UTF-8 or else GBK.
class EdScriptSource : public EdLineSource {
 public:
  EdScriptSource(CString name, std::string bytes, bool fallsThrough = true);
  std::optional<CString> next(bool& tooLong) override;
  bool atEnd() const override { return m_at >= m_bytes.size(); }
  CString name() const override { return m_name; }
  bool fallsThrough() const override { return m_fallsThrough; }
  bool isScript() const override { return true; }
  void abandon() override { m_at = m_bytes.size(); }

 private:
  CString m_name;
  std::string m_bytes;
  std::size_t m_at = 0;
  bool m_fallsThrough;
  bool m_gbk = false;
};

// Answers given one by one, such as the arguments of acedCommandS.
class EdAnswerSource : public EdLineSource {
 public:
  explicit EdAnswerSource(std::deque<CString> answers, bool echo = true, bool fallsThrough = false)
      : m_answers(std::move(answers)), m_echo(echo), m_fallsThrough(fallsThrough) {}
  std::optional<CString> next(bool& tooLong) override;
  bool atEnd() const override { return m_answers.empty(); }
  bool echo() const override { return m_echo; }
  bool fallsThrough() const override { return m_fallsThrough; }
  void abandon() override { m_answers.clear(); }

  // Splits text as it is typed at a command line: a blank or a line end closes an answer, quotes hold one
  // together. What follows the last of them is an answer too, unless it is empty.
  static std::deque<CString> split(const CString& text);

 private:
  std::deque<CString> m_answers;
  bool m_echo;
  bool m_fallsThrough;
};
