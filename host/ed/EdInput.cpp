#include "host/ed/EdInput.h"

#include "host/ed/EdFrontEnd.h"

#include <algorithm>
#include <utility>

void EdInput::push(std::unique_ptr<EdLineSource> source) {
  m_sources.push_back({std::move(source), 0, std::nullopt});
}

std::size_t EdInput::scriptDepth() const {
  return static_cast<std::size_t>(
      std::count_if(m_sources.begin(), m_sources.end(), [](const Source& s) { return s.lines->isScript(); }));
}

void EdInput::popTo(std::size_t depth) {
  if (m_sources.size() > depth) m_sources.resize(depth);
}

void EdInput::dropFinished() {
  while (!m_sources.empty() && !m_sources.back().unread && m_sources.back().lines->atEnd() &&
         m_sources.back().lines->fallsThrough())
    m_sources.pop_back();
}

bool EdInput::stopScripts() {
  if (m_last.source.IsEmpty()) return false;
  for (auto& source : m_sources) {
    if (!source.lines->isScript()) continue;
    source.lines->abandon();
    source.unread.reset();
  }
  return true;
}

void EdInput::clear() {
  m_sources.clear();
  m_typedUnread.reset();
  m_typedLines = 0;
  m_last = {};
}

// As if Escape had been typed: nothing that waits to be read is read any more.
EdInput::Fetched EdInput::cancelAll() {
  for (auto& source : m_sources) {
    source.lines->abandon();
    source.unread.reset();
  }
  m_typedUnread.reset();
  return {{L"*cancel*", CString(), 0, true}, true, false};
}

std::optional<EdInput::Fetched> EdInput::fetch(const CString& prompt, From from) {
  if (m_frontEnd && m_frontEnd->takeInterrupt()) return cancelAll();
  for (std::size_t at = m_sources.size(); at-- > 0;) {
    auto& source = m_sources[at];
    if (source.passedOver > 0) continue;
    m_fetchedFrom = at;
    if (source.unread) return std::exchange(source.unread, std::nullopt);
    bool tooLong = false;
    if (auto text = source.lines->next(tooLong))
      return Fetched{
          {std::move(*text), source.lines->name(), source.lines->isScript() ? ++source.number : 0, false},
          source.lines->echo(),
          tooLong};
    if (!source.lines->fallsThrough()) return std::nullopt;
    if (at + 1 == m_sources.size()) m_sources.pop_back();
  }
  if (from == From::scripts) return std::nullopt;
  if (m_typedUnread) return std::exchange(m_typedUnread, std::nullopt);
  if (!m_frontEnd) return std::nullopt;
  auto text = m_frontEnd->readLine(prompt);
  if (!text) return std::nullopt;
  const bool tooLong = text->View().size() > kEdLineLimit;
  if (tooLong) *text = text->Left(kEdLineLimit);
  return Fetched{{std::move(*text), CString(), ++m_typedLines, true}, true, tooLong};
}

std::optional<EdInput::Fetched> EdInput::fetchNoComment(const CString& prompt, bool freeText, From from) {
  while (auto fetched = fetch(prompt, from)) {
    if (fetched->tooLong) {
      m_last = fetched->line;
      CString reason;
      reason.Format(L"这一行超过 %d 字节，未予读取。", static_cast<int>(kEdLineLimit));
      m_refuse(reason, L"较短的一行");
      continue;
    }
    if (freeText || !fetched->line.text.View().starts_with(L';')) return fetched;
    if (m_frontEnd && fetched->echo) m_frontEnd->echo(CString(), fetched->line.text, fetched->line.typed);
  }
  return std::nullopt;
}

EdLine EdInput::take(const CString& prompt, const Fetched& fetched) {
  m_last = fetched.line;
  if (m_frontEnd && fetched.echo) m_frontEnd->echo(prompt, m_last.text, m_last.typed);
  return m_last;
}

std::optional<EdLine> EdInput::read(const CString& prompt, bool freeText) {
  const auto fetched = fetchNoComment(prompt, freeText);
  if (!fetched) return std::nullopt;
  return take(prompt, *fetched);
}

std::optional<EdLine> EdInput::readIf(const CString& prompt, const std::function<bool(const CString&)>& fits,
                                      From from) {
  auto fetched = fetchNoComment(prompt, false, from);
  if (!fetched) return std::nullopt;
  if (fits(fetched->line.text)) return take(prompt, *fetched);
  auto& unread = fetched->line.typed ? m_typedUnread : m_sources[m_fetchedFrom].unread;
  unread = std::move(fetched);
  return std::nullopt;
}

EdInput::UserOnly::UserOnly(EdInput& input) : m_input(input), m_depth(input.m_sources.size()) {
  for (Source& source : input.m_sources)
    if (!source.lines->isScript() && !source.lines->fallsThrough()) ++source.passedOver;
}

EdInput::UserOnly::~UserOnly() {
  for (std::size_t i = 0; i < std::min(m_depth, m_input.m_sources.size()); ++i)
    if (m_input.m_sources[i].passedOver > 0) --m_input.m_sources[i].passedOver;
}
