#include "host/ed/EdLineSource.h"

#include "host/afx/CodePage.h"
#include "host/afx/Encoding.h"

#include <string_view>

EdScriptSource::EdScriptSource(CString name, std::string bytes, bool fallsThrough)
    : m_name(std::move(name)), m_bytes(std::move(bytes)), m_fallsThrough(fallsThrough) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (m_bytes.starts_with(byteOrderMark)) m_at = byteOrderMark.size();
  m_gbk = !afx::IsUtf8(std::string_view(m_bytes).substr(m_at));
}

std::optional<CString> EdScriptSource::next(bool& tooLong) {
  if (m_at >= m_bytes.size()) return std::nullopt;
  const auto end = std::min(m_bytes.find('\n', m_at), m_bytes.size());
  std::string_view line(m_bytes.data() + m_at, end - m_at);
  m_at = end + 1;
  if (line.ends_with('\r')) line.remove_suffix(1);
  tooLong = line.size() > kEdLineLimit;
  if (tooLong) line = line.substr(0, kEdLineLimit);
  const auto* page = m_gbk ? afx::CodePage::Find("ANSI_936") : nullptr;
  return CString(page ? page->Decode(line) : afx::Utf8ToWide(line));
}

std::optional<CString> EdAnswerSource::next(bool&) {
  if (m_answers.empty()) return std::nullopt;
  CString answer = std::move(m_answers.front());
  m_answers.pop_front();
  return answer;
}

std::deque<CString> EdAnswerSource::split(const CString& text) {
  std::deque<CString> answers;
  std::wstring answer;
  bool quoted = false;
  for (const wchar_t c : text.View()) {
    if (c == L'"') {
      quoted = !quoted;
    } else if (c == L'\n' || (c == L' ' && !quoted)) {
      answers.emplace_back(std::move(answer));
      answer.clear();
      quoted = false;
    } else if (c != L'\r') {
      answer += c;
    }
  }
  if (!answer.empty()) answers.emplace_back(std::move(answer));
  return answers;
}
